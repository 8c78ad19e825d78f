// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/diskfilling.h"

#include "backup/model/sealeddisk.h"
#include "backup/model/setfolder.h"

#include <QFileInfo>

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

/// So much is proven in one go: many small files share a flush, and little is done again after a failure.
constexpr qint64 batchBytes = qint64(64) * 1024 * 1024;
constexpr qsizetype batchFiles = 1000;
/// How often a file is read that changes while it is read.
constexpr int mostReadings = 3;

} // namespace

DiskFilling::DiskFilling(BackupCourse &course, SetDisk &disk, FileCopier &copier, const QString &folder,
                         qint64 lessRoom, std::function<void()> begun)
    : m_course(course)
    , m_disk(disk)
    , m_copier(copier)
    , m_folder(folder)
    , m_lessRoom(lessRoom)
    , m_begun(std::move(begun))
    , m_emptyRoom(roomKind())
{}

/// A file may have become larger or smaller since it was planned.
DiskResult DiskFilling::run()
{
    DiskResult result = m_disk.open();
    while (result == DiskResult::Done && !m_course.tally.isDone()) {
        QList<int> places;
        const int before = m_course.tally.doneCount();
        const PlannedDisk plan = planOfDisk(places);
        if (plan.parts.isEmpty())
            break;
        result = putAll(plan, places);
        if (result == DiskResult::Full && m_disk.keepsWhenFull()) {
            const DiskResult proven = prove();
            return proven == DiskResult::Done ? result : proven;
        }
        if (result == DiskResult::Done && before == m_course.tally.doneCount())
            break;
    }
    return result;
}

DiskResult DiskFilling::putAll(const PlannedDisk &plan, const QList<int> &places)
{
    for (const PlannedPart &part : plan.parts) {
        if (m_course.isStopped)
            return DiskResult::Stopped;
        DiskResult result = putPart(places[part.item], part);
        if (result == DiskResult::Done &&
            (m_disk.waitingBytes() >= batchBytes || m_disk.waitingCount() >= batchFiles))
            result = prove();
        if (result != DiskResult::Done)
            return result;
    }
    return prove();
}

DiskResult DiskFilling::putPart(int item, const PlannedPart &planned)
{
    const BackupItem &source = m_course.job.items[item];
    const BackupTally::State &state = m_course.tally.state(item);
    m_course.shown.file = source.name;
    BackupPart part{source.name,    source.size, planned.offset, planned.bytes,
                    source.changed, {},          planned.piece};
    if (planned.piece == 0 && SetFolder::isPicture(source.name)) {
        part.hash = m_course.known.hash(source);
        if (m_disk.hasPicture(part.hash, part.size)) {
            m_disk.putKnown(part);
            m_waiting.append(item);
            ++m_course.report.knownPictures;
            std::ignore = m_copier.goOn(0);
            return DiskResult::Done;
        }
    }
    if (state.pieces > 0 && state.lastDisk < m_course.number) {
        const QFileInfo now(source.path);
        if (now.size() != state.size || now.lastModified().toUTC() != state.changed) {
            m_course.tally.beginAnew(item);
            return DiskResult::Done;
        }
    }
    return copyPart(item, planned, part);
}

/// A file that changes while it is read is read again.
DiskResult DiskFilling::copyPart(int item, const PlannedPart &planned, const BackupPart &part)
{
    const bool isCut = planned.piece > 0;
    for (int reading = 1;; ++reading) {
        const FileHash whole = isCut ? m_course.tally.wholeHash(item) : FileHash();
        bool isSame = true;
        const DiskResult result =
            readPart(item, part, isCut ? &m_course.tally.wholeHash(item) : nullptr, isSame);
        const bool isDone = result == DiskResult::Done;
        const bool isAgain = isDone && !isSame && reading < mostReadings && m_disk.takeBack();
        if (isCut && (isAgain || !isDone))
            m_course.tally.wholeHash(item) = whole;
        if (isAgain)
            continue;
        if (isDone && !isSame)
            m_course.report.changing.append(part.name);
        if (isDone)
            notePut(item, planned.piece);
        if (result == DiskResult::Spoilt)
            m_spoilt.append(item);
        if (result != DiskResult::NotRead)
            return result;
        m_course.leaveOut(item);
        return DiskResult::Done;
    }
}

/// Once; `isSame` is whether the file was the same behind it as before.
DiskResult DiskFilling::readPart(int item, BackupPart part, FileHash *whole, bool &isSame)
{
    const BackupItem &source = m_course.job.items[item];
    const QFileInfo before(source.path);
    part.changed = source.path.isEmpty() ? m_course.report.set.begun : before.lastModified().toUTC();
    if (!source.path.isEmpty() && !whole)
        part.size = part.bytes = before.size();
    m_lastBytes = part.bytes;
    const DiskResult result =
        m_disk.put({source.path, source.content, part.offset, part.bytes, part.changed}, part, whole);
    const QFileInfo after(source.path);
    isSame = source.path.isEmpty() ||
             (after.size() == before.size() && after.lastModified() == before.lastModified());
    return result;
}

void DiskFilling::notePut(int item, int piece)
{
    m_begun();
    m_waiting.append(item);
    const QString &name = m_course.job.items[item].name;
    const bool wasThere = m_disk.wasThere();
    const qint64 bytes = wasThere ? 0 : m_lastBytes;
    m_bytes += bytes;
    m_roomUsed += m_emptyRoom.needed(name, bytes);
    m_course.report.bytes += bytes;
    if (piece <= 1 && SetFolder::isPicture(name))
        ++(wasThere ? m_course.report.knownPictures : m_course.report.newPictures);
}

DiskResult DiskFilling::prove()
{
    m_course.shown.step = DiskProgress::Step::ReadingBack;
    const qsizetype before = m_disk.parts().size();
    const DiskResult result = m_disk.prove();
    m_course.shown.step = DiskProgress::Step::Copying;
    if (result != DiskResult::Done)
        return result;
    for (qsizetype i = 0; i < m_waiting.size(); ++i)
        m_course.tally.put(m_waiting[i], m_disk.parts()[before + i], m_course.number);
    m_proven += m_waiting;
    m_waiting.clear();
    m_course.shown.files = m_course.tally.doneCount();
    return DiskResult::Done;
}

/// What there is to know of a disk but how much is free on it.
DiskRoom DiskFilling::roomKind() const
{
    const DiskRoom room = DiskRoom::ofEmpty(m_folder).within(m_course.job.room);
    return m_course.job.seal ? SealedDisk::sealedRoom(room) : room;
}

DiskRoom DiskFilling::roomNow() const
{
    DiskRoom room = m_emptyRoom;
    DiskRoom now = DiskRoom::of(m_folder);
    if (m_course.job.seal)
        now = SealedDisk::sealedRoom(now);
    room.bytes = m_course.job.room ? std::min(now.bytes, room.bytes - m_roomUsed) : now.bytes;
    room.bytes -= m_lessRoom;
    return room;
}

/// `places` are where the items of the plan stand among all.
PlannedDisk DiskFilling::planOfDisk(QList<int> &places)
{
    QList<PlannedItem> items;
    for (int i = 0; i < int(m_course.job.items.size()); ++i) {
        const BackupItem &item = m_course.job.items[i];
        const BackupTally::State &state = m_course.tally.state(i);
        if (state.isDone)
            continue;
        const bool isThere =
            SetFolder::isPicture(item.name) && m_disk.hasPicture(m_course.known.hash(item), item.size);
        items.append({item.name, item.size, state.offset, state.pieces, isThere});
        places.append(i);
    }
    const DiskPlan plan = DiskPlan::of(items, roomNow(), m_emptyRoom);
    m_course.shown.allBytes = m_course.shown.bytes + 2 * plan.bytes();
    m_course.shown.disks = std::max(m_course.number, m_course.number - 1 + int(plan.disks.size()));
    return plan.disks.constFirst();
}

bool DiskFilling::giveBack()
{
    const qsizetype part = m_disk.giveBack();
    if (part < 0)
        return false;
    m_course.tally.beginAnew(m_proven.takeAt(part));
    return true;
}
