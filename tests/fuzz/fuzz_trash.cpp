// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "storage/trash.h"

#include <QCryptographicHash>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = asBytes(data, size).toByteArray();
    const auto raw = Trash::decode(bytes);
    // Behind the checksum, which noise never has.
    const auto items = Trash::decode(bytes + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256));
    for (const auto &decoded : {raw, items})
        require(!decoded || Trash::decode(Trash::encode(*decoded)) == decoded, "what is read is written so");
    return 0;
}
