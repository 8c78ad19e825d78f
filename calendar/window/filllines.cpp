// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/filllines.h"

using namespace Qt::Literals::StringLiterals;

QString FillLines::filled(const QString &summary)
{
    return u"Filled: "_s + summary;
}

QString FillLines::sourcesChanged(const QString &summary)
{
    return u"What it was filled from has changed since: %1. Ctrl+I fills it again."_s.arg(summary);
}

QString FillLines::nothingToFill()
{
    return u"Nothing in the household has an entry in these months."_s;
}

QString FillLines::nothingTicked()
{
    return u"Nothing is ticked"_s;
}

QString FillLines::guardedNote()
{
    return u"Guarded texts will stand in a calendar that no password guards."_s;
}

QString FillLines::guardRefused(const QString &title)
{
    return title + u" stays closed: nothing is taken from it"_s;
}

QString FillLines::behindPassword()
{
    return u"behind the password"_s;
}

QString FillLines::fillCaption(LineSource source)
{
    switch (source) {
    case LineSource::Typed:
        break;
    case LineSource::Planner:
        return u"Appointments"_s;
    case LineSource::ToDo:
        return u"Things to do"_s;
    case LineSource::Birthday:
        return u"Birthdays"_s;
    case LineSource::Anniversary:
        return u"Anniversaries"_s;
    case LineSource::Due:
        return u"What falls due"_s;
    case LineSource::Holiday:
        return u"Holidays"_s;
    case LineSource::Rule:
        return u"Days by rules"_s;
    }
    return {};
}

QString FillLines::rulesOfCalendar()
{
    return u"rules of this calendar"_s;
}

QString FillLines::nothingThere()
{
    return u"nothing in these months"_s;
}

QString FillLines::nothingAnyMore()
{
    return u"nothing any more"_s;
}

QString FillLines::countOfEntries(qsizetype count)
{
    return QString::number(count) + (count == 1 ? u" entry"_s : u" entries"_s);
}
