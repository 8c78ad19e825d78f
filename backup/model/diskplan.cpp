// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/diskplan.h"

#include <QStorageInfo>

#include <algorithm>
#include <numeric>

namespace {

constexpr qint64 fatLargest = (qint64(1) << 32U) - 1;
/// What a part takes in the records, in addition to its name, which stands there in up to four bytes a
/// letter.
constexpr qint64 recordBytes = 420;
constexpr qint64 bytesPerLetter = 4;
/// Folders and the two records take whole blocks.
constexpr qint64 blocksBefore = 6;

qint64 wholeBlocks(qint64 bytes, qint64 block)
{
    return (bytes + block - 1) / block * block;
}

bool isFat(const QByteArray &type)
{
    const QByteArray kind = type.toLower();
    return kind == "vfat" || kind == "msdos" || kind == "fat" || kind == "fat32" || kind == "fat16";
}

DiskRoom roomOf(const QStorageInfo &volume, qint64 bytes)
{
    DiskRoom room;
    room.bytes = std::max<qint64>(0, bytes);
    room.block = std::max(512, volume.blockSize());
    if (isFat(volume.fileSystemType()))
        room.largestFile = fatLargest;
    return room;
}

/// Fills one disk after the other.
class Filling
{
public:
    Filling(const QList<PlannedItem> &items, const DiskRoom &next)
        : m_items(items)
        , m_next(next)
        , m_waiting(items.size())
    {
        std::iota(m_waiting.begin(), m_waiting.end(), 0);
    }

    bool isDone() const { return m_waiting.isEmpty(); }

    PlannedDisk fill(const DiskRoom &room)
    {
        m_disk = {};
        m_left = room.bytes - blocksBefore * room.block;
        QList<int> later;
        for (const int item : std::as_const(m_waiting)) {
            if (!place(item, room))
                later.append(item);
        }
        m_waiting = later;
        return m_disk;
    }

private:
    bool isLargerThanADisk(const PlannedItem &item, const DiskRoom &room) const
    {
        const qint64 empty = m_next.bytes - blocksBefore * m_next.block;
        return item.size > room.largestFile || item.size > m_next.largestFile ||
               m_next.needed(item.name, item.size) > empty;
    }

    /// Whether all that is to come of the item is on this disk now.
    bool place(int index, const DiskRoom &room)
    {
        PlannedItem &item = m_items[index];
        const qint64 needed = room.needed(item.name, item.isThere ? 0 : item.size);
        const bool isWhole = item.offset == 0 && item.pieces == 0;
        if (isWhole && needed <= m_left && (item.isThere || item.size <= room.largestFile)) {
            put({index, 0, item.size, 0}, needed, item.isThere ? 0 : item.size);
            return true;
        }
        if (isWhole && (item.isThere || !isLargerThanADisk(item, room)))
            return false;
        while (item.offset < item.size && placePiece(index, room)) {}
        return item.offset == item.size;
    }

    bool placePiece(int index, const DiskRoom &room)
    {
        PlannedItem &item = m_items[index];
        const qint64 free = (m_left - room.needed(item.name, 0)) / room.block * room.block;
        const qint64 bytes = std::min({item.size - item.offset, room.largestFile, free});
        if (bytes <= 0)
            return false;
        put({index, item.offset, bytes, ++item.pieces}, room.needed(item.name, bytes), bytes);
        item.offset += bytes;
        return true;
    }

    void put(const PlannedPart &part, qint64 needed, qint64 bytes)
    {
        m_disk.parts.append(part);
        m_disk.bytes += bytes;
        m_left -= needed;
    }

    QList<PlannedItem> m_items;
    DiskRoom m_next;
    QList<int> m_waiting; ///< what is not, or not wholly, on a disk
    PlannedDisk m_disk;
    qint64 m_left = 0;
};

} // namespace

qint64 DiskRoom::needed(const QString &name, qint64 bytes) const
{
    return wholeBlocks(bytes, block) + each + recordBytes + bytesPerLetter * name.size();
}

DiskRoom DiskRoom::of(const QString &folder)
{
    const QStorageInfo volume(folder);
    return roomOf(volume, volume.bytesAvailable());
}

DiskRoom DiskRoom::ofEmpty(const QString &folder)
{
    const QStorageInfo volume(folder);
    // What a file system keeps for itself, and is not told.
    return roomOf(volume, volume.bytesTotal() / 100 * 98);
}

DiskRoom DiskRoom::within(const std::optional<DiskRoom> &limit) const
{
    if (!limit)
        return *this;
    DiskRoom room = *limit;
    room.bytes = std::min(room.bytes, bytes);
    room.largestFile = std::min(room.largestFile, largestFile);
    return room;
}

DiskPlan DiskPlan::of(const QList<PlannedItem> &items, const DiskRoom &first, const DiskRoom &next)
{
    DiskPlan plan;
    Filling filling(items, next);
    for (bool isFirst = true; isFirst || !filling.isDone(); isFirst = false) {
        const PlannedDisk disk = filling.fill(isFirst ? first : next);
        if (disk.parts.isEmpty() && !isFirst) {
            plan.isPossible = false;
            break;
        }
        plan.disks.append(disk);
    }
    return plan;
}

qint64 DiskPlan::bytes() const
{
    return std::accumulate(disks.begin(), disks.end(), qint64(0),
                           [](qint64 sum, const PlannedDisk &disk) { return sum + disk.bytes; });
}
