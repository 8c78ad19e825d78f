// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

/// What the viewer and the pictures screen ask, say and print. The wording is fixed, odd spellings included.
namespace ViewerMessages {

using namespace Qt::Literals::StringLiterals;

inline QString viewerTitle()
{
    return u"Family/Friends Data Viewer"_s;
}

inline QString picturesTitle()
{
    return u"Family/Friends Pictures Display Screen"_s;
}

// Questions and notices.

inline Message birthdayMonthMissing()
{
    return {u"Display Option"_s, u"Please enter Birthday Month!"_s};
}

inline Message anniversaryMonthMissing()
{
    return {u"Display Option"_s, u"Please enter Anniversary Month!"_s};
}

inline Message searchTextMissing()
{
    return {u"Search"_s, u"Please Enter Search Text then press Search!"_s};
}

inline Message removeRow()
{
    return {u"Delete Command"_s,
            u"Temporarily delete this entire row from grid display?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::Yes};
}

/// `folder` receives the file; Cancel leaves a file of that name as it is.
inline Message exportNotice(const QString &folder, const QString &name)
{
    return {u"Export File in Excel/Spreadsheet Format"_s,
            u"A non-formatted Spreadsheet File will be saved in the program folder:  "_s + folder +
                u"\nwith the following name.\n"_s + name +
                u"\nNote: If File already exists it will be replaced with this file!"_s,
            Message::Information,
            {Answer::Ok, Answer::Cancel}};
}

inline Message picturesRestraint()
{
    return {u"Print Pictures Restraint"_s,
            u"Due to some computer and video memory restraints this portion of "
            u"the program was written to only display and print one page at a time.\n"
            u"Loading and printing many pictures may take several minutes.\n"
            u"DO NOT USE COMPUTER FOR OTHER PURPOSES DURING LOADING AND PRINTING ACTIONS!"_s,
            Message::Warning};
}

// The grid.

inline QString nameHeading()
{
    return u"Name"_s;
}

/// The first row of a grid that has none.
inline QString nothingToShow(bool isSearching)
{
    return isSearching ? u"No Matches were Found!"_s : u"No Names Found with Info..."_s;
}

inline QString nameCount(int count)
{
    return u"No. Of Names: "_s + QString::number(count);
}

inline QString matchCount(int count)
{
    return u"No. Of Matches Found: "_s + QString::number(count);
}

/// The mode with its access key; `searchText` is empty while all names are shown.
inline QString displayMode(const QString &searchText)
{
    return searchText.isEmpty() ? u"Current Display Mode: &View All"_s
                                : u"Current Display Mode: &Search For: ["_s + searchText + u']';
}

// Printed pages.

/// Comes before the number of the page; `choice` is the information shown, or empty.
inline QString listTitle(const QString &choice)
{
    return u"Family/Friends"_s + (choice.isEmpty() ? QString() : QString(u' ' + choice)) +
           u" List - Page No. "_s;
}

inline QString asOf(const QString &date)
{
    return u"As of  "_s + date;
}

inline QString telephone(const QString &number)
{
    return u"    Phone: "_s + number;
}

inline QString pictureListTitle(const QString &date)
{
    return u"Family/Friends Picture List - "_s + date;
}

// The pictures screen.

inline QString pictureTotal(int count)
{
    return u" Total = "_s + QString::number(count);
}

} // namespace ViewerMessages
