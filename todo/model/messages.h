// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

#include <QStringList>

/// The questions of the To Do list.
namespace ToDoMessages {

using namespace Qt::Literals::StringLiterals;

/// The lists are not on the disk, which refuses them.
inline Message leaveUnsaved()
{
    return {u"To Do List"_s,
            u"Leave without saving?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message copied()
{
    return {u"Copy Option"_s, u"Data has been copied to the Windows Clipboard."_s};
}

inline Message exportNotice(const QString &folder, const QString &name)
{
    return {
        u"Export File in Excel/Spreadsheet Format"_s,
        u"A non-formatted Spreadsheet File (tab-delimited text file) will be saved in the program folder:  "_s +
            u'\n' + folder + u"\nWith the following name:\n"_s + name +
            u"\nNote: If File already exists it will be replaced with this file!"_s,
        Message::Information,
        {Answer::Ok, Answer::Cancel}};
}

/// Names the first of what is still open.
inline Message deleteList(const QString &name, const QStringList &open)
{
    constexpr qsizetype most = 5;
    QString text = u"Do you really want to delete the list \u201c%1\u201d?"_s.arg(name);
    if (!open.isEmpty())
        text +=
            open.size() == 1 ? u"\nIt has 1 thing to do:"_s : u"\nIt has %1 things to do:"_s.arg(open.size());
    for (const QString &thing : open.first(std::min(most, open.size())))
        text += u"\n\u2022 "_s + thing;
    if (open.size() > most)
        text += u"\nand %1 more"_s.arg(open.size() - most);
    return {u"Delete List"_s, text, Message::Question, {Answer::Yes, Answer::No}, Answer::No};
}

} // namespace ToDoMessages
