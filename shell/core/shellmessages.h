// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

/// The fixed wording of the shell's questions and quiet lines.
namespace ShellMessages {

inline Message colorConflict()
{
    return {QStringLiteral("Color Conflict"),
            QStringLiteral("Selected Color would cause a conflict with Text and Background Colors!"),
            Message::Critical};
}

// A folder that was chosen

/// It is not there.
inline Message driveUnavailable()
{
    return {QStringLiteral("Device/Drive Error"), QStringLiteral("Device/Drive is Unavailable!"),
            Message::Critical};
}

/// It is there, but cannot be read, or does not take the file.
inline Message deviceUnavailable()
{
    return {QStringLiteral("Device Status"), QStringLiteral("Device Unavailable!  "), Message::Critical};
}

// Family name

inline QString familyNameTitle()
{
    return QStringLiteral("Family Name");
}

inline QString familyNamePrompt()
{
    return QStringLiteral("Please Enter Family Name for use in the Various Program areas.\n\n"
                          "To Accept name,\nclick OK.\n\n"
                          "To Delete name,\nclick Cancel or press <Esc> key.");
}

inline Message deleteFamilyName(const QString &name)
{
    return {familyNameTitle(),
            QStringLiteral("Delete Family Name - %1?").arg(name),
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

// Colours

inline QString panelColorTitle()
{
    return QStringLiteral("Panel Color");
}

inline QString textColorTitle()
{
    return QStringLiteral("Text Color");
}

/// The question before the colour dialog opens, for the panels or for the text on them.
inline Message newOrDefaultColor(const QString &title)
{
    return {title,
            QStringLiteral("Select New Color or Use System Default Color?\n"
                           "Yes = Color Selection Panel will appear.\n"
                           "No = Current System Default Color will be selected."),
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

inline Message savePanelColor()
{
    return {QStringLiteral("Panel Color Changes"),
            QStringLiteral("Save changes made to Panel Color?"),
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::Yes};
}

inline Message saveColors()
{
    return {QStringLiteral("Color Changes"),
            QStringLiteral("Save changes made to Panel and or Text Color?"),
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

inline Message updateWholeProgram()
{
    return {QStringLiteral("Complete Program Panel Color Update Option"),
            QStringLiteral("Save Panel Color Changes for ALL of the Program Functions?"),
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::No};
}

// Toolbars and status bar

inline QString restoreTopToolbar()
{
    return QStringLiteral("Click to Restore Top Toolbar");
}

inline QString restoreSideToolbars()
{
    return QStringLiteral("Click to Restore Side Toolbars");
}

inline QString customizeToolbarTitle()
{
    return QStringLiteral("Customize Toolbar");
}

inline Message topToolbarIsRemoved()
{
    return {customizeToolbarTitle(), QStringLiteral("Please Restore Top Toolbar before Customizing!")};
}

// Quiet lines of the status bar

inline QString required()
{
    return QStringLiteral("required");
}

inline QString fieldIsFull(int limit)
{
    return QStringLiteral("This box takes %1 characters at most").arg(limit);
}

/// `cutOff`: the end of what was offered, which the box did not take.
inline QString fieldIsFull(int limit, const QString &cutOff)
{
    return fieldIsFull(limit) + QStringLiteral(". Cut off: \u201c%1\u201d").arg(cutOff);
}

inline QString characterRefused(const QString &characters)
{
    return QStringLiteral("The files cannot hold the character %1").arg(characters);
}

} // namespace ShellMessages
