// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"
#include "storage/sealing/secretbytes.h"

#include <QDateTime>

#include <functional>

/// The fields of an entry as they lie, one behind the other, in its sealed records: number, flags, length and
/// text of each.
namespace KeeperPayload {

/// When the password was set, a time in ISO form: kept by the keeper itself and no field of the entry's.
inline constexpr quint8 passwordChangedField = 12;

/// A field where it lies in memory that is wiped.
struct Field {
    quint8 id = 0;
    bool isSecret = false;
    QByteArrayView text;
};

/// Visits the fields of `bytes` as far as they are whole.
void forEach(QByteArrayView bytes, const std::function<void(const Field &)> &visit);

/// The entry without an id. What the keeper notes for itself is left out.
KeeperEntry decoded(QByteArrayView bytes);

/// The bytes of the entry. Empty when one of its texts is longer than a field can be; `fits` tells it before.
SecretBytes encoded(const KeeperEntry &entry, const QDateTime &passwordChanged = {});

/// Bytes that the entry takes, or more than there is room for when one of its texts is too long.
qsizetype sizeOf(const KeeperEntry &entry);
/// Whether an entry has room in the records that it may have.
bool fits(const KeeperEntry &entry);

} // namespace KeeperPayload
