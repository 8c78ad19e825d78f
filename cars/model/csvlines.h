// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/historylines.h"

/// The quiet words about histories and fill-ups that go out to files and come in from them.
namespace CsvLines {

using namespace Qt::Literals::StringLiterals;

inline QString nothingToExport(CarPart part)
{
    return part == CarPart::Fuel ? u"There is no fill-up to export"_s : u"There is no entry to export"_s;
}

inline QString noColumns()
{
    return u"No column with dates was found in this file. Say under Columns which one it is."_s;
}

/// `notUsed` are the columns of the file that will not be taken.
inline QString whatIsTaken(CarPart part, const QStringList &notUsed)
{
    const QString taken = part == CarPart::Fuel
                              ? u"The ticked lines become fill-ups; readings before them, distance and "
                                u"consumption are worked out where they are missing."_s
                              : u"The ticked lines become entries."_s;
    return notUsed.isEmpty() ? taken
                             : QString(taken + u" Not used: "_s + notUsed.join(u", "_s) +
                                       u". Click a heading to say what it is in the file."_s);
}

/// Of a line that has a date and no more.
inline QString nothingDone(CarPart part)
{
    return part == CarPart::Fuel ? u"Left out: nothing filled in"_s : u"Left out: nothing was done"_s;
}

inline QString broughtIn(CarPart part, int count)
{
    return u"Brought in: "_s + HistoryLines::countOf(part, count);
}

} // namespace CsvLines
