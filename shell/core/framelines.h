// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/changeset.h"
#include "storage/trash.h"

#include <QString>

/// Quiet lines that every window says in the same words: of the status bar, beside a button, or as the reason
/// why a command cannot be used.
namespace FrameLines {

using namespace Qt::Literals::StringLiterals;

inline QString unsavedChanges()
{
    return u"Unsaved changes"_s;
}

inline QString settingNotSaved()
{
    return u"The setting could not be saved"_s;
}

/// What is said of a refused change: `asItWas` where nothing of it stays, else that it will be finished.
inline QString refused(const DataFolder &folder, const QString &asItWas)
{
    return ChangeSet::isPending(folder)
               ? u"The disk refused in the middle; this is finished as soon as it takes more"_s
               : asItWas;
}

inline QString stillBusy()
{
    return u"This window closes when the work under way has ended"_s;
}

inline QString savedAs(const QString &path)
{
    return u"Saved as "_s + path;
}

/// Both count from 1.
inline QString pageOf(int page, int count)
{
    return u"Page "_s + QString::number(page) + u" of "_s + QString::number(count);
}

inline QString notADate()
{
    return u"Not a date that can be counted with"_s;
}

/// Buttons and marks of functions that only other editions have.
inline QString showOtherEditions()
{
    return u"Show those of other editions"_s;
}

inline QString changedSince(const QString &title)
{
    return u"Changed elsewhere since; shown as it is now, nothing undone: "_s + title;
}

inline QString typedSince(const QString &title)
{
    return u"Something was typed since; nothing was undone: "_s + title;
}

inline QString undoRefused(const QString &title)
{
    return u"The disk refused; it can be tried again: "_s + title;
}

inline QString trashKeeps()
{
    return u"What is deleted can be brought back for 30 days"_s;
}

inline QString trashSetAside()
{
    return u"The file of what was deleted before could not be read and was set aside"_s;
}

inline QString trashOutOfReach()
{
    return u"It was not kept among what can be brought back"_s;
}

/// `line`, with what the trash made of a deletion where that is worth a word.
inline QString withTrash(const QString &line, Trash::State state)
{
    switch (state) {
    case Trash::State::Whole:
        return line;
    case Trash::State::Foreign:
        return line + u". "_s + trashSetAside();
    case Trash::State::OutOfReach:
        return line + u". "_s + trashOutOfReach();
    }
    Q_UNREACHABLE();
}

// Reasons

inline QString trashIsEmpty()
{
    return u"Nothing was deleted in the last 30 days"_s;
}

inline QString nothingToUndo()
{
    return u"Nothing to undo"_s;
}

inline QString nothingToRedo()
{
    return u"Nothing to redo"_s;
}

inline QString folderCannotBeWritten()
{
    return u"The household's folder cannot be written to"_s;
}

inline QString folderPerhapsInUse()
{
    return u"Another program may be using this household"_s;
}

inline QString backupNotThere()
{
    return u"Backup is not part of this edition yet"_s;
}

inline QString nothingToBackUp()
{
    return u"Nothing has been saved here yet"_s;
}

inline QString firstPage()
{
    return u"This is the first page"_s;
}

inline QString lastPage()
{
    return u"This is the last page"_s;
}

} // namespace FrameLines
