// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperrecord.h"

#include <QtEndian>

#include <cstring>

namespace {

constexpr qsizetype partAt = 2;
constexpr qsizetype partsAt = 4;
constexpr qsizetype usedAt = 6;
constexpr qsizetype idAt = 8;
constexpr qsizetype versionAt = 24;
constexpr qsizetype timeAt = 28;
static_assert(timeAt + qsizetype(sizeof(qint64)) == KeeperRecord::headLength);

} // namespace

KeeperRecord KeeperRecord::decoded(QByteArrayView bytes)
{
    Q_ASSERT(bytes.size() >= headLength);
    KeeperRecord record;
    record.state = quint8(bytes[0]);
    record.part = qFromLittleEndian<quint16>(bytes.data() + partAt);
    record.parts = qFromLittleEndian<quint16>(bytes.data() + partsAt);
    record.used = qFromLittleEndian<quint16>(bytes.data() + usedAt);
    record.id = bytes.sliced(idAt, idLength).toByteArray();
    record.version = qFromLittleEndian<quint32>(bytes.data() + versionAt);
    record.time = qFromLittleEndian<qint64>(bytes.data() + timeAt);
    return record;
}

bool KeeperRecord::isSound() const
{
    return part >= 1 && part <= parts && parts <= mostParts && used <= partLength;
}

void KeeperRecord::encode(QByteArrayView payload, char *bytes) const
{
    Q_ASSERT(payload.size() <= partLength);
    bytes[0] = char(state);
    qToLittleEndian<quint16>(part, bytes + partAt);
    qToLittleEndian<quint16>(parts, bytes + partsAt);
    qToLittleEndian<quint16>(quint16(payload.size()), bytes + usedAt);
    if (!id.isEmpty())
        std::memcpy(bytes + idAt, id.data(), std::size_t(idLength));
    qToLittleEndian<quint32>(version, bytes + versionAt);
    qToLittleEndian<qint64>(time, bytes + timeAt);
    if (!payload.isEmpty())
        std::memcpy(bytes + headLength, payload.data(), std::size_t(payload.size()));
}
