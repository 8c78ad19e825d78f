// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

#include <QStringList>

/// The boxes of backup and restore.
namespace BackupMessages {

using namespace Qt::Literals::StringLiterals;

inline Message driveUnavailable()
{
    return {u"Device/Drive Error"_s, u"Device/Drive is Unavailable!"_s, Message::Information};
}

inline Message folderUnavailable()
{
    return {u"Device Status"_s, u"Device Unavailable!  "_s, Message::Information};
}

inline Message ownFolder()
{
    return {u"Backup"_s,
            u"A backup cannot go into the folder of the household or of the program.\nWhat happens to that "
            u"folder would happen to the backup, too. Choose a drive, or a folder elsewhere."_s,
            Message::Information};
}

/// `begun` is a date.
inline Message goOn(const QString &begun)
{
    return {u"Backup"_s,
            u"Go on with the backup of %1?\nIt is not finished. No begins a new one."_s.arg(begun),
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

/// `names` are those of files that are not as they were written.
inline Message damaged(const QStringList &names)
{
    constexpr qsizetype most = 8;
    QString list = names.first(qMin(most, names.size())).join(u'\n');
    if (names.size() > most)
        list += u"\nand %1 more"_s.arg(names.size() - most);
    return {
        u"Backup"_s,
        u"This backup is damaged. Make another one, on another drive.\nNot as they were written, or missing:\n"_s +
            list,
        Message::Warning};
}

inline Message notDeletable()
{
    return {u"Backup"_s,
            u"This backup stays.\nThe only complete one on a drive, and what belongs to the last backup, is "
            u"never deleted."_s,
            Message::Information};
}

/// `size` is what becomes free, but for pictures.
inline Message deleteSet(const QString &when, const QString &size)
{
    return {u"Backup"_s,
            u"Delete the backup of %1?\n%2 become free, and the room of pictures that no other backup on the "
            u"drive has."_s.arg(when, size),
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message stopBackup()
{
    return {u"Backup"_s,
            u"Stop the backup?\nIt is marked as not finished, and can be gone on with."_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

/// `made` is a date, perhaps with a time.
inline Message deleteSnapshot(const QString &made)
{
    return {u"Backup"_s,
            u"Delete the snapshot of %1?\nNothing can be brought back from it then."_s.arg(made),
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

/// `functions` are titles.
inline Message olderSnapshots(const QString &functions, int count)
{
    const QString which = count == 1 ? u"One snapshot holds"_s : u"%1 snapshots hold"_s.arg(count);
    return {
        u"Backup"_s,
        u"%1 %2 as it was before, open to whoever has the file.\nDelete what was made until now? Nothing can "
        u"be brought back from it then."_s.arg(which, functions),
        Message::Question,
        {Answer::Yes, Answer::No},
        Answer::No};
}

} // namespace BackupMessages
