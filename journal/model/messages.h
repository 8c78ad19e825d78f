// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

/// The questions of the journal.
namespace JournalMessages {

using namespace Qt::Literals::StringLiterals;

inline QString title()
{
    return u"Daily Journal"_s;
}

/// The disk refuses what was written.
inline Message leaveUnsaved()
{
    return {title(),
            u"Leave without saving?\nWhat was written last is not on the disk, which refuses it."_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message copied()
{
    return {u"Copy Option"_s, u"Data has been copied to the Windows Clipboard."_s};
}

inline Message deleteEntry(const QString &date)
{
    return {
        u"Delete Entry"_s,
        u"Delete the entry of %1?\nIts earlier version is kept: Earlier Version brings it back."_s.arg(date),
        Message::Question,
        {Answer::Yes, Answer::No},
        Answer::No};
}

inline Message deleteForGood(const QString &date)
{
    return {
        u"Delete for Good"_s,
        u"Delete the entry of %1 for good?\nIts earlier version goes too. This cannot be undone; a backup may still have it."_s
            .arg(date),
        Message::Question,
        {Answer::Yes, Answer::No},
        Answer::No};
}

inline Message setAside(int year, const QString &file)
{
    return {
        u"Set Aside"_s,
        u"Set %1 aside and begin %2 anew?\nThe file keeps everything in it, under another name."_s.arg(file)
            .arg(year),
        Message::Question,
        {Answer::Yes, Answer::No},
        Answer::No};
}

/// Of years that nobody can open.
inline Message setSealedAside(const QStringList &files)
{
    return {u"Set Aside"_s,
            u"Set %1 aside and begin anew?\nThey keep everything in them, under other names."_s.arg(
                files.join(u", "_s)),
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

} // namespace JournalMessages
