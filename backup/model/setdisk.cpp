// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/setdisk.h"

#include "backup/model/diskplan.h"
#include "backup/model/diskrecords.h"
#include "backup/model/setfolder.h"
#include "storage/disk.h"
#include "storage/saving.h"
#include "storage/systemfile.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>
#include <optional>
#include <span>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Where less than this is left, a write that was refused was one too many.
constexpr qint64 nothingLeft = qint64(256) * 1024;

bool isOneOf(const QString &error, std::span<const int> failures)
{
    return std::ranges::any_of(failures, [&](int failure) { return error == qt_error_string(failure); });
}

} // namespace

SetDisk::SetDisk(const QString &drive, const DiskRecord &record, FileCopier &copier)
    : m_drive(drive)
    , m_record(record)
    , m_copier(copier)
{}

/// The folder of a run that ended before; else one that is not there yet.
bool SetDisk::findFolder()
{
    const QString name = SetFolder::path(m_drive, m_record.begun);
    m_folder = name;
    for (int number = 2; QFileInfo::exists(m_folder); ++number) {
        const std::optional<DiskRecord> found = DiskRecords::readDisk(m_folder);
        if (found && found->set == m_record.set && found->number == m_record.number)
            return true;
        m_folder = name + u" ~%1"_s.arg(number);
    }
    return false;
}

DiskResult SetDisk::open()
{
    m_isFound = findFolder();
    if (!QDir().mkpath(m_folder))
        return whyNotWritten();
    // Without its parts: whoever finds it knows the disk, and that it is not finished.
    if (!m_isFound && !Disk::writeWhole(pathOf(DiskRecord::fileName), DiskRecords::encoded(m_record)))
        return whyNotWritten();
    m_isOpen = true;
    Disk::flushNames(m_folder);
    Disk::flushNames(QFileInfo(m_folder).path());
    return DiskResult::Done;
}

bool SetDisk::isThere() const
{
    return QFileInfo::exists(pathOf(DiskRecord::fileName));
}

DiskResult SetDisk::whyNotWritten(const QString &error) const
{
    if (!QFileInfo(m_drive).isDir() || (m_isOpen && !isThere()))
        return DiskResult::Gone;
    if (isOneOf(error, SystemFile::failuresWhenFull()))
        return DiskResult::Full;
    if (isOneOf(error, SystemFile::failuresWhenProtected()))
        return DiskResult::Protected;
    if (QStorageInfo(m_drive).isReadOnly())
        return DiskResult::Protected;
    return DiskRoom::of(m_drive).bytes < nothingLeft ? DiskResult::Full : DiskResult::NotWritten;
}

DiskResult SetDisk::resultOf(FileCopier::Result result) const
{
    switch (result) {
    case FileCopier::Result::Done:
        return DiskResult::Done;
    case FileCopier::Result::Stopped:
        return DiskResult::Stopped;
    case FileCopier::Result::NotRead:
        return DiskResult::NotRead;
    case FileCopier::Result::NotWritten:
        break;
    }
    return whyNotWritten(m_copier.error());
}

void SetDisk::leave()
{
    if (m_record.parts.isEmpty() && isThere())
        QDir(m_folder).removeRecursively();
}

/// In one step: a disk that is full keeps the record that it had.
bool SetDisk::write(QLatin1StringView name, const QByteArray &content) const
{
    const QString path = pathOf(name);
    const QString part = path + Saving::partSuffix;
    if (Disk::writeWhole(part, content) && Disk::renameOver(part, path))
        return true;
    std::ignore = Disk::remove(part);
    return false;
}
