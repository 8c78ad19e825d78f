// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "journal/model/sealedyear.h"

#include <algorithm>
#include <array>

namespace {

const QByteArray head(SealedYear::headLength, 'h');
const QByteArray firstLine = QByteArrayLiteral("Quillery journal 1\r\n");

/// Whatever the bytes are: what shows, shows again behind a save.
void read(const QByteArray &bytes, const SecretBytes &key)
{
    SealedYear::isSealed(bytes);
    SealedYear::isLater(bytes);
    const SealedYear year(2026, bytes, key);
    const SealedYear again(2026, year.changedTo(year.plain(), head), key);
    require(again.plain() == year.plain(), "a save changes nothing that shows");
    require(again.holdsBack() == year.holdsBack(), "a save keeps what does not open");
}

/// Any plain year comes back as it was.
void seal(const QByteArray &text, const SecretBytes &key)
{
    const QByteArray plain = firstLine + text;
    const SealedYear year(2026, SealedYear::sealed(2026, plain, head, key), key);
    require(year.plain() == plain && year.damage().empty(), "what was sealed opens to the same bytes");
}

/// Each three bytes are a place, and what is changed there.
void damage(QByteArrayView changes, const SecretBytes &key)
{
    static const std::array<QByteArray, 3> blocks{"=== 2026-01-02\r\n\r\nOne\r\n",
                                                  "=== 2026-03-04\r\n\r\nTwo\r\n",
                                                  QByteArray("=== 2026-05-06\r\n\r\n").append(300, 'x')};
    const QByteArray plain = firstLine + blocks[0] + blocks[1] + blocks[2];
    QByteArray bytes = SealedYear::sealed(2026, plain, head, key);
    for (qsizetype at = 0; at + 2 < changes.size(); at += 3) {
        const qsizetype place = (uchar(changes[at]) * 256 + uchar(changes[at + 1])) % bytes.size();
        bytes[place] = char(bytes[place] ^ changes[at + 2]);
    }
    const SealedYear year(2026, bytes, key);
    QByteArray shown = year.plain();
    require(shown.startsWith(firstLine), "it begins as a plain year does");
    shown.remove(0, firstLine.size());
    for (const QByteArray &block : blocks) {
        if (shown.startsWith(block))
            shown.remove(0, block.size());
    }
    require(shown.isEmpty(), "nothing opens that was not written, and all in its order");
    read(bytes, key);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const SecretBytes key = SecretBytes::copyOf(QByteArray(32, 'k'));
    const QByteArrayView bytes = asBytes(data, size);
    read(bytes.toByteArray(), key);
    seal(bytes.toByteArray(), key);
    damage(bytes, key);
    return 0;
}
