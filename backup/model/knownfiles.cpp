// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/knownfiles.h"

#include "backup/model/diskrecords.h"
#include "backup/model/setlist.h"

KnownFiles KnownFiles::of(const std::optional<SetRecord> &last, const QString &drive)
{
    KnownFiles known;
    // The record of a backup that is complete knows all that the drive's does.
    const bool isComplete = last && last->ended.isValid() && !last->files.isEmpty();
    if (const std::optional<QString> folder = isComplete ? std::nullopt : SetList::lastFolder(drive)) {
        if (const std::optional<SetRecord> record = DiskRecords::readSet(*folder))
            known.add(*record);
    }
    if (last)
        known.add(*last);
    return known;
}

void KnownFiles::add(const SetRecord &record)
{
    for (const BackupFile &file : record.files)
        m_files.insert(file.name, {file.size, file.changed.toMSecsSinceEpoch(), file.hash});
}

QByteArray KnownFiles::hash(const BackupItem &item) const
{
    const auto file = m_files.constFind(item.name);
    const bool isSame = file != m_files.cend() && file->size == item.size &&
                        file->changed == item.changed.toMSecsSinceEpoch();
    return isSame ? file->hash : QByteArray();
}
