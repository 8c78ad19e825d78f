// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

/// The questions of the calendar maker.
namespace CalendarMessages {

using namespace Qt::Literals::StringLiterals;

/// The calendars are not on the disk, which refuses them.
inline Message leaveUnsaved()
{
    return {u"Calendar Maker"_s,
            u"Leave without saving?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message deleteCalendar(const QString &title)
{
    return {u"Delete Calendar"_s,
            u"Do you really want to delete the calendar \u201c%1\u201d?"_s.arg(title),
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message emptyMonth(const QString &month)
{
    return {
        u"Empty Month"_s,
        u"Do you really want to take all lines out of %1?\nA new fill brings what came from elsewhere."_s.arg(
            month),
        Message::Question,
        {Answer::Yes, Answer::No},
        Answer::No};
}

} // namespace CalendarMessages
