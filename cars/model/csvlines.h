// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/historylines.h"

/// The quiet words about histories and fill-ups that go out to files and come in from them.
namespace CsvLines {

using namespace Qt::Literals::StringLiterals;

inline QString exportTitle()
{
    return u"Export to a File"_s;
}

inline QString importTitle()
{
    return u"Bring In a File"_s;
}

inline QString filter()
{
    return u"Comma-separated values (*.csv *.txt *.tsv);;All files (*)"_s;
}

inline QString exported(const QString &file)
{
    return u"Saved: "_s + file;
}

inline QString notExported(const QString &file)
{
    return file + u" could not be saved there"_s;
}

inline QString nothingToExport(CarPart part)
{
    return part == CarPart::Fuel ? u"There is no fill-up to export"_s : u"There is no entry to export"_s;
}

inline QString cannotRead(const QString &file)
{
    return file + u" cannot be read"_s;
}

inline QString tooLong(const QString &file)
{
    return file + u" is too long for such a file"_s;
}

inline QString noColumns()
{
    return u"No column with dates was found in this file"_s;
}

inline QString whatIsTaken(CarPart part)
{
    return part == CarPart::Fuel ? u"The ticked lines become fill-ups."_s
                                 : u"The ticked lines become entries."_s;
}

/// "12 of 14 lines will be taken"
inline QString toBeTaken(int chosen, std::size_t lines)
{
    return QString::number(chosen) + u" of "_s + QString::number(lines) +
           (lines == 1 ? u" line will be taken"_s : u" lines will be taken"_s);
}

inline QString isBeingRead()
{
    return u"The file is still being read"_s;
}

inline QString nothingToTake()
{
    return u"No line is ticked"_s;
}

inline QString broughtIn(CarPart part, int count)
{
    return u"Brought in: "_s + HistoryLines::countOf(part, count);
}

} // namespace CsvLines
