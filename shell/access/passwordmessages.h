// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

#include <QDir>

/// The questions and notices of password control and of the password prompt.
namespace PasswordMessages {

inline QString title()
{
    return QStringLiteral("Password Control");
}

/// Nothing guarded opens and nothing is saved while the password file is in this state. `folder` is where the
/// good copy belongs.
inline Message fileDamaged(const QString &folder)
{
    return {title(),
            QStringLiteral(
                "The password file is damaged.\n"
                "Until it is mended, nothing opens that a password can guard, and no password can be "
                "set or changed.\n"
                "To mend it, close Quillery, copy the file PCtrl1.Fil from your backup into the folder "
                "%1 and start Quillery again.")
                .arg(QDir::toNativeSeparators(folder)),
            Message::Critical};
}

/// Asked when password control is left with marks that were changed and not saved.
inline Message saveChanges()
{
    return {title(),
            QStringLiteral("Save changes made to the protected areas?"),
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

/// Asked when one of two ways into `function` is marked and `otherWay`, "the toolbar button" or the like, is
/// not.
inline Message markOtherWay(const QString &function, const QString &otherWay)
{
    return {title(),
            QStringLiteral("Mark %2 of %1 too?\nOtherwise it still opens there without the password.")
                .arg(function, otherWay),
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::Yes};
}

// Quiet lines beside the box.

/// What the prompt asks for, below the function's name.
inline QString typeThePassword()
{
    return QStringLiteral("Type the password to open this function.");
}

inline QString passwordMissing()
{
    return QStringLiteral("Type the password first.");
}

inline QString tryAgainIn(int seconds)
{
    return seconds == 1 ? QStringLiteral("Try again in 1 second.")
                        : QStringLiteral("Try again in %1 seconds.").arg(seconds);
}

inline QString wrongPassword()
{
    return QStringLiteral("That is not the password.");
}

inline QString newPasswordMissing()
{
    return QStringLiteral("Type the new password first.");
}

inline QString passwordsDiffer()
{
    return QStringLiteral("The two new passwords differ. Type the same one again.");
}

inline QString passwordNotSaved()
{
    return QStringLiteral("The change could not be saved. Everything is as it was.");
}

inline QString answersSpent()
{
    return QStringLiteral("Three answers were wrong. Close this window and open it again.");
}

inline QString lengthHint()
{
    return QStringLiteral(
        "Any length is taken; longer is better. Three or four words are easy to remember and "
        "hard to guess.");
}

// The recovery code.

inline QString recoveryTitle()
{
    return QStringLiteral("Recovery Code");
}

inline QString keepTheCode()
{
    return QStringLiteral(
        "It leads to a new password where this one is forgotten. Print it and keep the sheet away from the "
        "computer: it is not shown again.");
}

inline QString typeTheCode()
{
    return QStringLiteral("It leads to a new password. Capital letters, blanks and dashes do not matter.");
}

inline QString codeMistyped()
{
    return QStringLiteral("A character is missing or mistaken. Compare it with your paper.");
}

inline QString wrongCode()
{
    return QStringLiteral("That is not the recovery code.");
}

inline QString codeIsKept()
{
    return QStringLiteral("There is a recovery code for it.");
}

inline QString codeMade()
{
    return QStringLiteral("The new recovery code is in force; the one before is not.");
}

inline QString noCode()
{
    return QStringLiteral("There is no recovery code: a forgotten password cannot be replaced.");
}

/// What being covered means.
inline QString coveringHint()
{
    return QStringLiteral("Covered windows keep what was typed and show it after the password. Ctrl+L and "
                          "\u201cLock Now\u201d cover at once; so do the session's lock and sleep.");
}

// What password control says of itself.

inline QString setSummary()
{
    return QStringLiteral("It is asked for in front of this window and of every function that is marked.");
}

inline QString notSetSummary()
{
    return QStringLiteral("Every function opens without asking.");
}

inline QString damagedSummary()
{
    return QStringLiteral(
        "The password file is damaged. Nothing can be changed until PCtrl1.Fil is restored from a "
        "backup.");
}

inline QString marksNeedPassword()
{
    return QStringLiteral("Set a password first: there is nothing to ask for yet.");
}

/// Beside a mark whose other way is not marked.
inline QString stillOpens(const QString &level, const QString &way)
{
    return QStringLiteral("%1. Still opens by %2.").arg(level, way);
}

inline QString nothingToSave()
{
    return QStringLiteral("No mark was changed.");
}

inline QString markOfOtherEdition()
{
    return QStringLiteral("This program does not have the function. Its mark is kept as it is.");
}

// Quiet lines of the status bar.

inline QString passwordSet()
{
    return QStringLiteral("The password is set. Now mark what it shall guard.");
}

inline QString passwordChanged()
{
    return QStringLiteral("The password is changed.");
}

inline QString passwordRemoved()
{
    return QStringLiteral("The password is removed. Every function opens without asking.");
}

inline QString marksSaved()
{
    return QStringLiteral("Saved.");
}

inline QString marksNotSaved()
{
    return QStringLiteral("The marks could not be saved. They are still here.");
}

} // namespace PasswordMessages
