// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The quiet words about what leaves the weight tracker and what comes in: pages and files.
namespace WeightPaperLines {

using namespace Qt::Literals::StringLiterals;

inline QString chartNotSaved()
{
    return u"The picture of the graph could not be saved in the data folder; it is printed all the same"_s;
}

inline QString noWeighIns()
{
    return u"There are no weigh-ins yet"_s;
}

inline QString noPhoto()
{
    return u"No photo was chosen"_s;
}

inline QString noColumns()
{
    return u"No columns with dates and weights were found in this file"_s;
}

inline QString whatIsTaken()
{
    return u"New dates and weights become weigh-ins, in the order of their days."_s;
}

inline QString nothingToTake()
{
    return u"There is nothing new in this file"_s;
}

inline QString lineCount(int count)
{
    return count == 1 ? u"1 line"_s : QString::number(count) + u" lines"_s;
}

/// "12 lines will be taken, 3 lines are there already, 1 line cannot be read"
inline QString whatBecomes(int ready, int duplicates, int unread)
{
    QString words = lineCount(ready) + u" will be taken"_s;
    if (duplicates > 0)
        words += u", "_s + lineCount(duplicates) +
                 (duplicates == 1 ? u" is there already"_s : u" are there already"_s);
    if (unread > 0)
        words += u", "_s + lineCount(unread) + u" cannot be read"_s;
    return words;
}

inline QString broughtIn(int count)
{
    return count == 1 ? u"Brought in: 1 weigh-in"_s : u"Brought in: %1 weigh-ins"_s.arg(count);
}

} // namespace WeightPaperLines
