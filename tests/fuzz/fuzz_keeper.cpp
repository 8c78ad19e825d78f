// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "keeper/model/keeperindex.h"
#include "keeper/model/keeperpayload.h"
#include "keeper/model/keeperrecord.h"
#include "keeper/model/keepersettings.h"
#include "storage/sealing/keyslots.h"

namespace {

/// The key file: whatever it is, nothing beyond bearable costs counts.
void readKeys(QByteArrayView bytes)
{
    static const KeySlots keys(DataFolder(QStringLiteral("/nowhere")), QStringLiteral("Secfile2.fil"),
                               "QKEEPER");
    std::optional<KeySlots::Content> content;
    const KeySlots::State state = keys.parse(bytes, content);
    const bool isUsable = state == KeySlots::State::Whole || state == KeySlots::State::OneCopyDamaged;
    require(content.has_value() == isUsable, "there is a copy that counts when the file can be used");
    require(!content || content->cost.isBearable(), "a cost of 1 GiB and 16 passes at most");
}

/// The open bytes of a record.
void readRecord(QByteArrayView bytes)
{
    if (bytes.size() < KeeperRecord::headLength)
        return;
    const KeeperRecord record = KeeperRecord::decoded(bytes);
    require(!record.isSound() || record.used <= KeeperRecord::partLength, "a part has room in a record");
}

/// Fields of an entry; of settings, too.
void readPayload(QByteArrayView bytes)
{
    const KeeperEntry entry = KeeperPayload::decoded(bytes);
    if (KeeperPayload::fits(entry)) {
        const KeeperEntry written = KeeperPayload::decoded(KeeperPayload::encoded(entry).view());
        const KeeperEntry again = KeeperPayload::decoded(KeeperPayload::encoded(written).view());
        require(written.fields.size() == entry.fields.size(), "every field is kept");
        require(again == written, "what was written is written again as it is");
    }
    KeeperIndex index;
    index.add({.id = QByteArray(KeeperRecord::idLength, 'i')}, bytes);
    index.settle();
    const KeeperSummary summary = index.summary(0);
    require(index.find(summary.title).size() <= 1, "an entry is found once");
    const KeeperSettings settings = KeeperSettings::decoded(bytes);
    require(settings.lockMinutes >= 1 && settings.clipboardSeconds >= 10,
            "settings stay within their limits");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes = asBytes(data, size);
    readKeys(bytes);
    readRecord(bytes);
    readPayload(bytes);
    return 0;
}
