// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/copyopening.h"

#include "backup/model/backuplines.h"
#include "backup/model/diskturns.h"
#include "backup/model/recordfiles.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 millisecondsBetween = 100;

/// How many bytes of the set lie on a disk; what is cut counts with the same on each of its disks.
qint64 bytesOn(const SetRecord &set, int number)
{
    qint64 bytes = 0;
    for (const BackupFile &file : set.files) {
        if (file.firstDisk <= number && number <= file.lastDisk)
            bytes += file.size / (file.lastDisk - file.firstDisk + 1);
    }
    return bytes;
}

OpenedCopy refused(const QString &sentence)
{
    OpenedCopy opened;
    opened.refusal = sentence;
    return opened;
}

} // namespace

CopyOpening::CopyOpening(BackupSet set, QString password, DiskAsker &asker, Progress progress)
    : m_set(std::move(set))
    , m_password(std::move(password))
    , m_asker(asker)
    , m_tell(std::move(progress))
{
    m_progress.allBytes = OpenedBackup::sealedBytes(m_set);
    m_clock.start();
}

OpenedCopy CopyOpening::run(PrivateFolder &into)
{
    const OpenedBackup backup =
        OpenedBackup::ofSet(m_set, m_password, [this](qint64 bytes) { return look(bytes); });
    if (!backup.refusal.isEmpty() || m_isStopped)
        return refused(m_isStopped ? QString() : backup.refusal);
    qint64 written = 0;
    RecordFiles files(backup.set, m_isStopped, [this, &written](qint64 bytes) {
        written += bytes;
        if (!m_set.isSealed())
            tell(written);
    });
    const auto content = m_set.isSealed() ? PrivateFolder::Content::Sealed : PrivateFolder::Content::Open;
    if (!into.make(content, files.bytes()))
        return refused(u"There is no room to open this backup: %1 are needed for a while"_s.arg(
            BackupLines::size(files.bytes())));
    files.setFolder(into.path());
    plan(backup.set, files);
    if (!readDisks(backup, files))
        return refused(files.hasFailed() ? u"There is no room to open this backup"_s : QString());
    return OpenedCopy::ofFiles(backup.set, files, into.path());
}

/// While a sealed disk is read through.
bool CopyOpening::look(qint64 bytes)
{
    tell(std::max(m_progress.bytes, m_diskBegin + bytes));
    return !m_isStopped;
}

/// Of a sealed set all disks but the last, which is known by now, are read through to their ends.
void CopyOpening::plan(const SetRecord &set, const RecordFiles &files)
{
    m_progress = {};
    m_progress.disks = set.disks;
    m_progress.allBytes = files.bytes();
    if (!m_set.isSealed())
        return;
    const QList<int> disks = files.disks();
    for (const int number : disks)
        m_progress.allBytes += number == set.disks ? 0 : bytesOn(set, number);
}

bool CopyOpening::readDisks(const OpenedBackup &backup, RecordFiles &files)
{
    DiskTurns turns(*backup.source, m_asker, backup.set.disks, backup.place.drive, m_isStopped);
    const QList<int> disks = files.disks();
    return std::ranges::all_of(disks, [&](int number) {
        m_progress.disk = number;
        m_diskBegin = m_progress.bytes;
        const auto attempt = [&](const QString &root) -> std::optional<DiskTurns::Attempt> {
            files.beginDisk(number);
            const RestoreSource::Reading reading = backup.source->read(root, number, files);
            if (m_isStopped || files.hasFailed())
                return std::nullopt;
            return DiskTurns::Attempt{files.isDiskDone() ? RestoreSource::Reading::Done : reading,
                                      files.hasBegun()};
        };
        return turns.read(number, attempt);
    });
}

void CopyOpening::tell(qint64 bytes)
{
    m_progress.bytes = std::min(bytes, m_progress.allBytes);
    if (!m_tell || (m_told >= 0 && m_clock.elapsed() - m_told < millisecondsBetween))
        return;
    m_told = m_clock.elapsed();
    m_progress.seconds = m_told / 1000;
    m_tell(m_progress);
}
