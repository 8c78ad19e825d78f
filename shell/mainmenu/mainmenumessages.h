// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

#include <QDir>
#include <QSize>

#include <optional>

/// What the main menu says and asks.
namespace StartMessages {

inline Message exit()
{
    return {QStringLiteral("Exit"),
            QStringLiteral("Do you wish to Exit Quillery?"),
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

/// A second start that nobody answers. `holder`: the program that made the lock, as far as it can be read.
inline Message folderHeld(const QString &folder, const QString &holder)
{
    const QString who = holder.isEmpty() ? QStringLiteral("another program") : holder;
    return {QStringLiteral("Quillery"),
            QStringLiteral(
                "Another Quillery seems to use these data already.\nThe folder %1 is held by %2, which "
                "does not answer. Two programs at work on the same data can spoil them.\n"
                "Yes = Open the data all the same, when you know that no other program uses them.\n"
                "No = Leave everything as it is.")
                .arg(QDir::toNativeSeparators(folder), who),
            Message::Warning,
            {Answer::Yes, Answer::No},
            Answer::No};
}

/// The lock could not be taken over: some systems keep a file while a program has it open.
inline Message folderStillHeld(const QString &folder, const QString &holder)
{
    const QString who = holder.isEmpty() ? QStringLiteral("a program") : holder;
    return {
        QStringLiteral("Quillery"),
        QStringLiteral("The folder %1 cannot be opened yet.\nIts lock is kept by %2, which still runs. End "
                       "that program first; one that shows no window, in the Task Manager.\n"
                       "Yes = Try again.\nNo = Leave everything as it is.")
            .arg(QDir::toNativeSeparators(folder), who),
        Message::Warning,
        {Answer::Yes, Answer::No},
        Answer::Yes};
}

inline Message screenTooSmall()
{
    return {QStringLiteral("Program Display Option"),
            QStringLiteral("Monitor Resolution Settings (Screen Area) and Program Size requirements are at "
                           "least 800 by 600 or Higher.\n"
                           "If you do not set your screen resolution to this setting or higher this program "
                           "will not function properly!")};
}

/// The notice for a screen of `pixels`, when it is too small for the program.
inline std::optional<Message> screenCheck(QSize pixels)
{
    if (pixels.width() < 800 || pixels.height() < 600)
        return screenTooSmall();
    return std::nullopt;
}

/// A list-file button found nothing to show; `title` is the button's.
inline Message noFilesToView(const QString &title)
{
    return {title, QStringLiteral("There are currently no files to view!")};
}

inline Message noFilesToRollUp(const QString &title)
{
    return {title, QStringLiteral("There are currently no files to display rollup information!")};
}

} // namespace StartMessages
