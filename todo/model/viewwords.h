// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/dates.h"

/// What the groups of a view are called.
namespace ToDoViewWords {

using namespace Qt::Literals::StringLiterals;

inline QString overdue()
{
    return u"Overdue"_s;
}

inline QString nobody()
{
    return u"Nobody in particular"_s;
}

/// "3 later": things that come back only then.
inline QString later(int count, bool isShown)
{
    return isShown ? u"%1 later, shown below"_s.arg(count) : u"%1 later"_s.arg(count);
}

/// "Today, Saturday, November 21, 2026".
inline QString day(QDate day, QDate today, const DateStyle &style)
{
    QString date = Dates::longText(day, style);
    switch (today.daysTo(day)) {
    case 0:
        return u"Today, "_s + date;
    case 1:
        return u"Tomorrow, "_s + date;
    case -1:
        return u"Yesterday, "_s + date;
    default:
        return date;
    }
}

} // namespace ToDoViewWords
