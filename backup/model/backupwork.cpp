// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backupwork.h"

#include "backup/model/backupscope.h"
#include "backup/model/diskrecords.h"
#include "backup/model/drives.h"
#include "backup/model/plaindisk.h"
#include "backup/model/sealeddisk.h"
#include "backup/model/setfolder.h"
#include "storage/saving.h"
#include "storage/sealing/secretbytes.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

constexpr qint64 tellEvery = 100; ///< milliseconds
/// What a sealed disk is given less, at least, that was full sooner than it said.
constexpr qint64 leastLessRoom = qint64(64) * 1024;

QByteArray newSet()
{
    return SecretBytes::random(16).view().toByteArray();
}

} // namespace

BackupWork::BackupWork(const BackupJob &job, DiskAsker &asker, const BackupRun::Progress &progress,
                       const std::atomic_bool &isStopped)
    : m_course{.job = job, .isStopped = isStopped, .tally = BackupTally(job.items)}
    , m_asker(asker)
    , m_progress(progress)
    , m_folder(job.folder)
    , m_copier([this](qint64 bytes) { return goOn(bytes); })
    , m_count(job.count)
{
    m_clock.start();
    noteDrive();
}

BackupReport BackupWork::run()
{
    begin();
    Went went = Went::On;
    while (went != Went::Finished && went != Went::Stopped) {
        const BackupTally before = m_course.tally;
        const BackupReport reported = m_course.report;
        went = isReady() ? workOnDisk() : Went::Stopped;
        if (went == Went::Anew) {
            m_course.tally = before;
            m_course.report = reported;
            for (const int item : m_filling->spoilt())
                m_course.leaveOut(item);
        }
    }
    m_disk.reset();
    m_course.report.end = went == Went::Finished ? BackupReport::End::Complete : BackupReport::End::Stopped;
    m_course.report.isNoted = m_isBegun && noteInHousehold();
    if (isComplete()) {
        m_course.shown.bytes = m_course.shown.allBytes;
        m_course.shown.files = m_course.shown.allFiles;
    }
    tell(DiskProgress::Step::Finishing, true);
    return m_course.report;
}

/// A set that is gone on with keeps its id, and what lies on its disks already.
void BackupWork::begin()
{
    SetRecord &set = m_course.report.set;
    set.set = newSet();
    set.begun = m_course.job.begun;
    set.drive = m_course.job.drive;
    set.isSealed = m_course.job.seal != nullptr;
    const std::optional<SetRecord> former = DiskRecords::readSet(m_course.job.household.path());
    m_course.known = KnownFiles::of(former, m_folder);
    if (former && former->ended.isValid() &&
        BackupScope::isLess(m_course.job.items, *former, m_course.job.household))
        m_former = DiskRecords::encoded(*former);
    // The disks of a sealed set share a key, which another run has not.
    if (m_course.job.unfinished && !m_course.job.unfinished->ended.isValid() &&
        !m_course.job.unfinished->isSealed && !m_course.job.seal) {
        m_isBegun = true;
        set = *m_course.job.unfinished;
        set.drive = m_course.job.drive;
        m_course.number = set.disks;
        m_course.tally.takeOver(set, m_course.job.items, m_course.number);
        for (int i = 0; i < int(m_course.job.items.size()); ++i) {
            if (!countSame(i) && !m_course.isStopped)
                m_course.tally.beginAnew(i);
        }
        m_course.shown.bytes = 0;
        set.files = m_course.tally.files(m_course.job.items);
    }
    m_course.shown.allFiles = int(m_course.job.items.size());
}

/// Where the disk of another number of this set lies in the drive, nothing is written.
bool BackupWork::isOtherDisk(DiskQuestion &question) const
{
    const QDir top(m_folder + u'/' + SetFolder::top);
    const QString begin = QFileInfo(SetFolder::path(m_folder, m_course.report.set.begun)).fileName();
    for (const QString &name : top.entryList({begin + u'*'}, QDir::Dirs)) {
        const std::optional<DiskRecord> found = DiskRecords::readDisk(top.filePath(name));
        if (!found || found->set != m_course.report.set.set || found->number == m_course.number)
            continue;
        question.foundSet = found->begun;
        question.foundNumber = found->number;
        return true;
    }
    return false;
}

void BackupWork::noteDrive()
{
    if (Drives::isMountedAt(m_folder))
        m_drives.insert(m_folder);
}

/// A drive that was taken out may leave its empty folder behind, on the computer's own disk.
bool BackupWork::isThere() const
{
    return QFileInfo(m_folder).isDir() && (!m_drives.contains(m_folder) || Drives::isMountedAt(m_folder));
}

bool BackupWork::isReady()
{
    while (!m_course.isStopped) {
        DiskQuestion question{.kind = DiskQuestion::Kind::WrongDisk};
        if (!isThere())
            question.kind = m_wasIn ? DiskQuestion::Kind::DiskGone : DiskQuestion::Kind::NextDisk;
        else if (!isOtherDisk(question))
            question.kind = DiskQuestion::Kind::WriteProtected;
        if (question.kind == DiskQuestion::Kind::WriteProtected && DataFolder(m_folder).isWritable()) {
            m_wasIn = true;
            return true;
        }
        if (!ask(question))
            return false;
    }
    return false;
}

BackupWork::Went BackupWork::workOnDisk()
{
    const DiskRecord record{m_course.report.set.set, m_course.report.set.begun, m_course.number, {}};
    if (m_course.job.seal)
        m_disk = std::make_unique<SealedDisk>(m_folder, record, m_copier, m_course.job.seal);
    else
        m_disk = std::make_unique<PlainDisk>(m_folder, record, m_copier);
    m_filling = std::make_unique<DiskFilling>(m_course, *m_disk, m_copier, m_folder, m_lessRoom, [this] {
        // Now there is something to go on with.
        if (!std::exchange(m_isBegun, true))
            std::ignore = noteInHousehold();
    });
    m_course.report.set.disks = m_course.number;
    const DiskResult filled = m_filling->run();
    const bool isFull = filled == DiskResult::Full;
    if (filled == DiskResult::Spoilt)
        return Went::Anew;
    if (filled != DiskResult::Done && !isFull)
        return askAbout(filled) ? Went::Anew : Went::Stopped;
    const bool isKept = m_disk->keepsWhenFull();
    const DiskResult closed = isFull && !isKept ? DiskResult::Full : closeDisk();
    if (closed == DiskResult::Full && !isKept && m_filling->bytes() > 0) {
        // What it said that it has room for was too much: once more with less.
        m_lessRoom += std::max(m_filling->bytes() / 16, leastLessRoom);
        return Went::Anew;
    }
    if (closed == DiskResult::Full || (closed == DiskResult::Done && m_filling->isEmpty() && !isComplete())) {
        m_disk->leave();
        return ask({.kind = DiskQuestion::Kind::NoRoom}) ? Went::Anew : Went::Stopped;
    }
    if (closed != DiskResult::Done)
        return askAbout(closed) ? Went::Anew : Went::Stopped;
    if (isComplete())
        return Went::Finished;
    beginNextDisk();
    return ask({.kind = isFull ? DiskQuestion::Kind::DiskFull : DiskQuestion::Kind::NextDisk})
               ? Went::NextDisk
               : Went::Stopped;
}

/// Before it is asked for: the finished disk stands, also where the answer is to stop.
void BackupWork::beginNextDisk()
{
    m_lessRoom = 0;
    m_wasIn = false;
    m_isBegun = true;
    m_course.report.set.files = m_course.tally.files(m_course.job.items);
    m_course.report.set.disks = ++m_course.number;
    std::ignore = noteInHousehold();
}

/// The last disk gets the set's record; where that has no room, it is alone on one more.
DiskResult BackupWork::closeDisk()
{
    SetRecord &set = m_course.report.set;
    m_course.shown.step = DiskProgress::Step::Finishing;
    tell(m_course.shown.step, true);
    m_course.shown.step = DiskProgress::Step::Copying;
    for (;;) {
        if (m_course.tally.isDone()) {
            set.files = m_course.tally.files(m_course.job.items);
            countRecords();
            set.ended = m_course.job.now ? m_course.job.now() : set.begun;
            m_setBytes = DiskRecords::encoded(set);
            const DiskResult result = m_disk->close({&set, m_setBytes});
            if (result == DiskResult::Done)
                return result;
            set.ended = {};
            m_setBytes.clear();
            if (result != DiskResult::Full || !m_disk->keepsWhenFull())
                return result;
        }
        const DiskResult result = m_disk->close({});
        if (result == DiskResult::Done)
            gather();
        if (result != DiskResult::Full || !m_filling->giveBack())
            return result;
    }
}

/// The files of a disk that is going to be taken out, to be counted with those of the others.
void BackupWork::gather()
{
    if (const QString folder = m_disk->readableFolder(); m_count.isWanted() && !folder.isEmpty())
        m_count.addDisk(folder, m_disk->parts());
}

/// To be counted, too: what is on other disks, or in pieces, but is the same here. False where it is not.
bool BackupWork::countSame(int item)
{
    const BackupItem &source = m_course.job.items[item];
    const BackupTally::State &state = m_course.tally.state(item);
    if (!state.isDone || state.isLeftOut || source.path.isEmpty())
        return true;
    return m_count.addSame(source.path, {.name = source.name, .size = state.size, .hash = state.hash},
                           m_copier);
}

/// In the copy, not in the household.
void BackupWork::countRecords()
{
    if (m_course.number > 1) {
        gather();
        for (int i = 0; i < int(m_course.job.items.size()); ++i) {
            if (m_course.tally.state(i).pieces > 0)
                std::ignore = countSame(i);
        }
    }
    if (m_course.job.seal) // proven to be the same, byte for byte
        m_course.report.set.counts = m_count.of(m_course.job.household.path());
    else if (m_course.number == 1)
        m_course.report.set.counts = m_count.of(m_disk->readableFolder());
    else
        m_course.report.set.counts = m_count.ofGathered();
}

bool BackupWork::askAbout(DiskResult result)
{
    switch (result) {
    case DiskResult::Done:
        return true;
    case DiskResult::Stopped:
        return false;
    case DiskResult::Full:
        return ask({.kind = DiskQuestion::Kind::DiskFull});
    case DiskResult::Gone:
        return ask({.kind = DiskQuestion::Kind::DiskGone});
    case DiskResult::Protected:
        return ask({.kind = DiskQuestion::Kind::WriteProtected});
    case DiskResult::NotRead:
    case DiskResult::Spoilt:
    case DiskResult::Differs:
        return ask({.kind = DiskQuestion::Kind::NotRead, .file = m_disk->failedFile()});
    case DiskResult::NotWritten:
        break;
    }
    return ask({.kind = DiskQuestion::Kind::NotWritten, .file = m_disk->failedFile()});
}

bool BackupWork::ask(DiskQuestion question)
{
    question.disk = m_course.number;
    question.disks = std::max(m_course.shown.disks, m_course.number);
    question.folder = m_folder;
    if (m_course.isStopped)
        return false;
    const DiskAnswer answer = m_asker.ask(question);
    if (answer.action == DiskAnswer::Action::Stop || m_course.isStopped)
        return false;
    if (answer.action == DiskAnswer::Action::UseFolder && answer.folder != m_folder) {
        m_folder = answer.folder;
        m_course.report.set.drive = Drives::of(m_folder).name;
        noteDrive();
    }
    return true;
}

bool BackupWork::noteInHousehold()
{
    // The bytes of the whole set are those of the last disk.
    QByteArray bytes = isComplete() ? m_setBytes : DiskRecords::encoded(m_course.report.set);
    if (isComplete() && !m_former.isEmpty())
        bytes = m_former;
    return Saving::replaceFile(m_course.job.household, SetRecord::fileName, bytes);
}

bool BackupWork::goOn(qint64 bytes)
{
    m_course.shown.bytes += bytes;
    tell(m_course.shown.step);
    return !m_course.isStopped;
}

void BackupWork::tell(DiskProgress::Step step, bool isAtOnce)
{
    const qint64 now = m_clock.elapsed();
    if (!m_progress || (!isAtOnce && m_lastTold >= 0 && now - m_lastTold < tellEvery))
        return;
    m_lastTold = now;
    m_course.shown.step = step;
    m_course.shown.disk = m_course.number;
    m_course.shown.seconds = now / 1000;
    DiskProgress shown = m_course.shown;
    // Each byte counts when it is copied and when it is read back.
    shown.allBytes = m_course.shown.allBytes / 2;
    shown.bytes = std::min(m_course.shown.bytes / 2, shown.allBytes);
    m_progress(shown);
}
