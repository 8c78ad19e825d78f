// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/model/personfiles.h"

#include <QString>

/// The quiet words of the weight tracker's window: titles, lines of the status bar, reasons.
namespace TrackerLines {

using namespace Qt::Literals::StringLiterals;

inline QString countOfPersons(qsizetype count)
{
    return count == 1 ? u"1 person"_s : QString::number(count) + u" persons"_s;
}

inline QString newPerson()
{
    return u"New person"_s;
}

inline QString todaysDate(const QString &date)
{
    return u"Today's Date: "_s + date;
}

/// How a calendar year is kept apart.
inline QString yearNote()
{
    return u"NOTE: To track weight by calendar year add year to end of Name (i.e. John Smith 2012)"_s;
}

inline QString whatIsRequired()
{
    return u"A name is enough to begin"_s;
}

inline QString saved(const QString &name)
{
    return u"Saved: "_s + name;
}

inline QString created(const QString &name)
{
    return u"Created: "_s + name;
}

inline QString deleted(const QString &name)
{
    return u"Deleted: "_s + name;
}

inline QString broughtBack(const QString &name)
{
    return u"Brought back: "_s + name;
}

// Weigh-ins

/// What a weigh-in is called: "192.2, Aug 10, 2026".
inline QString weighIn(const QString &weight, const QString &date)
{
    const QString what = weight.isEmpty() ? u"weigh-in"_s : weight;
    return date.isEmpty() ? what : QString(what + u", "_s + date);
}

inline QString added(const QString &weighIn)
{
    return u"Added and saved: "_s + weighIn;
}

inline QString rowAdded(const QString &weighIn)
{
    return u"Row added: "_s + weighIn;
}

/// Nothing is written before the person has a file.
inline QString addedToNew()
{
    return u"Added. Save New File keeps it"_s;
}

inline QString rowDeleted(const QString &weighIn)
{
    return u"Row deleted: "_s + weighIn;
}

inline QString rowChanged(const QString &heading, const QString &weighIn)
{
    return heading + u": "_s + weighIn;
}

inline QString sorted()
{
    return u"Sorted by date"_s;
}

inline QString sortedAlready()
{
    return u"The rows are in the order of their days already"_s;
}

inline QString lightestFirst()
{
    return u"Shown by weight, the lightest first; the file keeps its order"_s;
}

inline QString heaviestFirst()
{
    return u"Shown by weight, the heaviest first; the file keeps its order"_s;
}

inline QString inFileOrder()
{
    return u"Shown in the order of the file"_s;
}

/// `difference` as "-0.4".
inline QString fromLast(const QString &difference)
{
    return difference + u" from the last entry"_s;
}

inline QString fromBeginning(const QString &difference)
{
    return difference + u" from the beginning"_s;
}

inline QString isComputed()
{
    return u"This is computed from the weights"_s;
}

inline QString weightFirst()
{
    return u"Type the weight first"_s;
}

inline QString noneYet()
{
    return u"No weigh-ins yet. Type the first weight above and press Enter."_s;
}

/// In the graph of a file that cannot be read.
inline QString nothingToShow()
{
    return u"There is nothing to show"_s;
}

/// Rows that the file has behind the last one it counts.
inline QString uncounted(qsizetype count)
{
    return count == 1 ? u"The file has 1 more weigh-in than it counts"_s
                      : u"The file has %1 more weigh-ins than it counts"_s.arg(count);
}

inline QString uncountedTaken()
{
    return u"Taken in: weigh-ins that the file did not count"_s;
}

inline QString uncountedLeftOut()
{
    return u"Left out: weigh-ins that the file did not count"_s;
}

/// Of the chart beside the table.
inline QString wayTitle(qsizetype weighIns)
{
    constexpr qsizetype shown = 50;
    return weighIns > shown ? u"The last 50 weigh-ins"_s : u"The way up to now"_s;
}

// The sheet

inline QString commentsFull()
{
    return u"The comments take %1 characters at most"_s.arg(WeightSheet::longestComments);
}

inline QString pictureNotFound(const QString &path)
{
    return u"The picture cannot be shown: "_s + path;
}

inline QString pathNotStorable()
{
    return u"The file cannot hold the path of this picture"_s;
}

inline QString noPictureToDelete()
{
    return u"There is no picture to delete"_s;
}

inline QString isTold(const QString &name)
{
    return u"The main menu may tell the weight of "_s + name;
}

inline QString isNotTold(const QString &name)
{
    return u"The main menu tells no weight of "_s + name;
}

/// Persons who have a file and are not in the list.
inline QString unlisted(const QStringList &names)
{
    return names.size() == 1 ? QString(names.first() + u" has a file, but is not in the list"_s)
                             : u"%1 persons have files, but are not in the list"_s.arg(names.size());
}

inline QString addUnlisted()
{
    return u"Add to the list"_s;
}

inline QString addedToList(const QStringList &names)
{
    return u"Added to the list: "_s + names.join(u", "_s);
}

// The disk

inline QString notSavedYet()
{
    return u"Nothing was saved yet"_s;
}

inline QString notSaved()
{
    return u"The disk refused; nothing was saved, and what was typed is still here"_s;
}

inline QString notDeleted()
{
    return u"The disk refused; nothing was deleted"_s;
}

inline QString changedElsewhere(const QString &name)
{
    return name + u" was changed elsewhere and is shown as it is now"_s;
}

inline QString changedElsewhereToo(const QString &name)
{
    return name + u" was changed elsewhere too; saving writes over that"_s;
}

/// What is wrong with a person's file; empty when nothing is.
inline QString stateOf(const QString &fileName, PersonFiles::State state)
{
    switch (state) {
    case PersonFiles::State::Cut:
        return fileName + u" ends early; the rest of it is blank here"_s;
    case PersonFiles::State::Foreign:
        return fileName + u" is no file of a person; it is left as it is"_s;
    case PersonFiles::State::OutOfReach:
        return fileName + u" cannot be read; it is left as it is"_s;
    default:
        return {};
    }
}

// Reasons

inline QString noPersonYet()
{
    return u"First choose a person, or create one"_s;
}

inline QString notWhileCreating()
{
    return u"First save the new person, or leave it"_s;
}

inline QString noPhotoYet()
{
    return u"There is no photo of this person yet"_s;
}

inline QString noRowChosen()
{
    return u"First choose a row of the table"_s;
}

inline QString inViewsOnly()
{
    return u"This can be used when the person is in front again"_s;
}

} // namespace TrackerLines
