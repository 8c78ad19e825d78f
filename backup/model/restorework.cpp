// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/restorework.h"

#include "backup/model/diskrecords.h"
#include "backup/model/diskturns.h"
#include "backup/model/restorelines.h"
#include "backup/model/restoreplaces.h"
#include "backup/model/setfolder.h"
#include "storage/changeset.h"
#include "storage/disk.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 millisecondsBetween = 100;

} // namespace

RestoreWork::RestoreWork(RestoreRun::Order order, RestoreSource &source, RestoreAsker &asker,
                         RestoreRun::Progress progress, const std::atomic<bool> &isStopped)
    : m_order(std::move(order))
    , m_source(source)
    , m_asker(asker)
    , m_tell(std::move(progress))
    , m_isStopped(isStopped)
    , m_laid(m_order.aim.folder)
    , m_outside(m_order.aim.folder, isStopped)
    , m_copier([this](qint64 bytes) {
        advance(bytes);
        return !m_isStopped;
    })
{}

RestoreResult RestoreWork::run()
{
    m_clock.start();
    if (m_order.prepare && !m_order.prepare(m_order)) {
        stopped();
        return m_result;
    }
    list();
    if (m_files.empty()) {
        m_result.end = RestoreResult::End::Restored;
        return m_result;
    }
    if (!begin() || !readDisks() || !check() || !askForDamaged() || !placeOutside() || !commit())
        takeBack();
    return m_result;
}

void RestoreWork::list()
{
    for (const RestoreItem &item : std::as_const(m_order.items)) {
        if (!item.isWritten())
            continue;
        m_numbers.insert(item.file.name, int(m_files.size()));
        m_files.push_back({.item = item});
        m_progress.allBytes += 2 * item.file.size;
    }
    m_progress.allFiles = int(m_files.size());
    m_progress.disks = m_order.set.disks;
}

bool RestoreWork::stopped()
{
    m_result.end = RestoreResult::End::Stopped;
    return false;
}

bool RestoreWork::refused(const QString &sentence)
{
    m_result.end = RestoreResult::End::Refused;
    m_result.refusal = sentence;
    return false;
}

bool RestoreWork::begin()
{
    const DataFolder &folder = m_order.aim.folder;
    if (folder.isReadOnly())
        return refused(folder.whyReadOnly());
    if (const auto room = RestorePlan::missingRoom(m_order.aim, m_order.items, m_order.freeBytes))
        return refused(RestoreLines::noRoom(*room));
    if (m_order.aim.isHousehold && m_order.snapshot) {
        if (const QString why = m_order.snapshot(); !why.isEmpty())
            return refused(why);
    }
    return m_laid.begin() || refused(RestoreLines::folderNotWritten(folder.path()));
}

bool RestoreWork::readDisks()
{
    DiskTurns turns(m_source, m_asker, m_order.set.disks, m_order.drive, m_isStopped);
    const QList<int> disks = RestorePlan::disks(m_order.items);
    return std::ranges::all_of(disks, [&](int number) { return readDisk(number, turns); });
}

bool RestoreWork::readDisk(int number, DiskTurns &turns)
{
    m_progress.disk = number;
    m_hasBegun = false;
    const auto attempt = [this, number](const QString &root) -> std::optional<DiskTurns::Attempt> {
        const RestoreSource::Reading reading = m_source.read(root, number, *this);
        rewind();
        if (m_isStopped || m_hasFailed)
            return std::nullopt;
        return DiskTurns::Attempt{reading, m_hasBegun};
    };
    if (turns.read(number, attempt))
        return true;
    return m_hasFailed && !m_isStopped ? refused(RestoreLines::folderNotWritten(m_order.aim.folder.path()))
                                       : stopped();
}

bool RestoreWork::wants(const BackupPart &part)
{
    const int number = m_numbers.value(part.name, -1);
    if (number < 0)
        return false;
    Laid &laid = m_files[std::size_t(number)];
    // A part that is out of turn leaves its file incomplete.
    if (laid.isComplete() || part.offset != laid.received || part.size != laid.item.file.size)
        return false;
    m_hasBegun = true;
    if (!m_laid.open(number, part.offset)) {
        m_hasFailed = true;
        return false;
    }
    m_part = part;
    m_number = number;
    m_before = m_hashes.value(number);
    m_progress.file = part.name;
    return true;
}

bool RestoreWork::take(QByteArrayView bytes)
{
    if (m_isStopped || m_hasFailed)
        return false;
    if (!m_laid.write(bytes)) {
        m_hasFailed = true;
        return false;
    }
    m_hashes[m_number].add(bytes);
    m_files[std::size_t(m_number)].received += bytes.size();
    advance(bytes.size());
    return true;
}

bool RestoreWork::end(bool isWhole)
{
    if (!isWhole || m_hasFailed) {
        rewind();
        return !m_isStopped && !m_hasFailed;
    }
    m_part.reset();
    Laid &laid = m_files[std::size_t(m_number)];
    if (laid.received == laid.item.file.size) {
        laid.hash = m_hashes[m_number].result();
        m_hashes.remove(m_number);
        ++m_progress.files;
    }
    m_laid.close(laid.item.file.changed);
    return !m_isStopped;
}

/// The part that was begun counts for nothing.
void RestoreWork::rewind()
{
    if (!m_part)
        return;
    Laid &laid = m_files[std::size_t(m_number)];
    m_progress.bytes -= laid.received - m_part->offset;
    laid.received = m_part->offset;
    m_hashes.insert(m_number, *m_before);
    m_part.reset();
    m_laid.leave();
}

bool RestoreWork::check()
{
    tell(DiskProgress::Step::ReadingBack);
    if (!m_laid.flush())
        return refused(RestoreLines::folderNotWritten(m_order.aim.folder.path()));
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        const Laid &laid = m_files[i];
        if (!laid.isComplete())
            continue;
        m_progress.file = laid.item.file.name;
        QByteArray hash;
        const FileCopier::Result result = m_copier.readBack(m_laid.path(int(i)), hash);
        if (m_isStopped)
            return stopped();
        if (result != FileCopier::Result::Done || hash != laid.hash)
            return refused(RestoreLines::notReadBack(laid.item.file.name));
    }
    return true;
}

bool RestoreWork::askForDamaged()
{
    QStringList damaged;
    for (const Laid &laid : m_files) {
        if (laid.isDamaged())
            damaged.append(laid.item.file.name);
    }
    if (!damaged.isEmpty() && !m_asker.takeTheRest(damaged))
        return stopped();
    for (Laid &laid : m_files) {
        laid.isTaken = !laid.isDamaged() || (laid.isComplete() && m_asker.takeDamaged(laid.item.file.name));
        if (!laid.isTaken)
            m_result.damaged.append(laid.item.file.name);
    }
    if (m_isStopped)
        return stopped();
    return std::ranges::any_of(m_files, &Laid::isTaken) || refused(RestoreLines::nothingLeft());
}

/// Pictures that stand outside the folder go there before the records that name them come: where it ends in
/// between, there are some pictures more. One that is refused there comes among those of the household.
bool RestoreWork::placeOutside()
{
    tell(DiskProgress::Step::Finishing);
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        Laid &laid = m_files[i];
        if (!laid.isTaken)
            continue;
        if (m_isStopped)
            return stopped();
        RestoreItem &item = laid.item;
        // Another picture may have come there since.
        const bool isFree = !item.isPicture || !QFileInfo::exists(item.path);
        const bool isInside = m_outside.isInside(item.path);
        laid.isInPlace = isFree && !isInside && m_outside.put(m_laid.path(int(i)), item.path);
        if (!laid.isInPlace && (!isFree || !isInside))
            item.path = placeInside(item);
        if (!laid.isInPlace && !m_outside.isInside(item.path))
            return refused(RestoreLines::folderNotWritten(QFileInfo(item.path).path()));
    }
    return true;
}

QString RestoreWork::placeInside(const RestoreItem &item) const
{
    const QString wanted =
        m_order.aim.folder.filePath(RestorePlaces::picturesFolder()) + u'/' + QFileInfo(item.path).fileName();
    const auto isFree = [this](const QString &path) {
        return !QFileInfo::exists(path) &&
               std::ranges::none_of(m_files, [&path](const Laid &laid) { return laid.item.path == path; });
    };
    QString path = wanted;
    for (int number = 2; !isFree(path); ++number)
        path = RestorePlaces::numbered(wanted, number);
    return path;
}

bool RestoreWork::commit()
{
    const DataFolder &folder = m_order.aim.folder;
    ChangeSet change(folder);
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        const Laid &laid = m_files[i];
        if (!laid.isTaken || laid.isInPlace)
            QFile::remove(m_laid.path(int(i)));
        if (!laid.isTaken)
            continue;
        ++m_result.files;
        m_result.bytes += laid.item.file.size;
        const QString before = SetFolder::elsewherePath(laid.item.file.name);
        if (laid.item.effect == RestoreEffect::Beside || (!before.isEmpty() && before != laid.item.path))
            m_result.moved.append(laid.item.path);
        if (!laid.isInPlace)
            change.takeLaid(LaidFiles::name(int(i)), laid.item.path.sliced(folder.path().size() + 1));
    }
    if (m_order.isAll && m_order.aim.isHousehold && !folder.exists(SetRecord::fileName))
        change.replace(SetRecord::fileName, DiskRecords::encoded(m_order.set));
    Disk::flushNames(folder.path());
    const bool isDone = m_order.aim.isHousehold ? change.leaveToNextStart() : change.commit();
    if (!isDone && !ChangeSet::isPending(folder))
        return refused(RestoreLines::folderNotWritten(folder.path()));
    m_laid.handOver();
    // No start looks into another folder, so that what was refused in the middle is tried once more here.
    if (!isDone && !ChangeSet::recover(folder)) {
        m_outside.keep();
        return refused(RestoreLines::waits(folder.path()));
    }
    m_result.end = m_order.aim.isHousehold ? RestoreResult::End::AtNextStart : RestoreResult::End::Restored;
    tell(DiskProgress::Step::Finishing);
    return true;
}

void RestoreWork::takeBack()
{
    m_laid.drop();
    m_outside.takeBack();
    m_result.files = 0;
    m_result.bytes = 0;
    m_result.moved.clear();
    m_result.damaged.clear();
}

void RestoreWork::advance(qint64 bytes)
{
    m_progress.bytes += bytes;
    if (m_told < 0 || m_clock.elapsed() - m_told >= millisecondsBetween)
        tell(m_progress.step);
}

void RestoreWork::tell(DiskProgress::Step step)
{
    m_told = m_clock.elapsed();
    m_progress.step = step;
    m_progress.seconds = m_told / 1000;
    if (m_tell)
        m_tell(m_progress);
}
