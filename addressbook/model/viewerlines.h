// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressviewer.h"

#include <QLocale>
#include <QString>

/// Quiet lines of the viewer and the pictures screen; reasons of disabled commands among them.
namespace ViewerLines {

using namespace Qt::Literals::StringLiterals;

inline QString noPictures()
{
    return u"No entry has a picture"_s;
}

inline QString stopped()
{
    return u"Stopped"_s;
}

inline QString nothingShown()
{
    return u"No name is shown"_s;
}

inline QString chooseNameFirst()
{
    return u"Choose a name in the grid first"_s;
}

inline QString noEntry()
{
    return u"The record number of this line cannot be read: the name is too long for the list."_s;
}

inline QString notInList()
{
    return u"This entry is not in the list any more"_s;
}

inline QString nothingToSortBy()
{
    return u"The names stand alone: there is no information to sort by"_s;
}

inline QString chooseTelephones()
{
    return u"Choose Home Phone, Mobile Phone or Fax Number to dial a number of the grid"_s;
}

inline QString chooseMailAddresses()
{
    return u"Choose Email Address to write to somebody in the grid"_s;
}

inline QString noMailAddress()
{
    return u"There is no e-mail address beside this name"_s;
}

inline QString noMailProgram()
{
    return u"No mail program could be opened"_s;
}

/// Nothing of all names.
inline QString rangeShown(const DisplayRange &range)
{
    if (range.kind == DisplayRange::All)
        return {};
    return (range.kind == DisplayRange::BirthMonth ? u"Birthdays in "_s : u"Anniversaries in "_s) +
           QLocale::c().standaloneMonthName(range.month);
}

inline QString notExported(const QString &name)
{
    return u"The file "_s + name + u" could not be saved"_s;
}

inline QString rowDeleted(const QString &name)
{
    return u"Row deleted: "_s + name;
}

inline QString removed(const QString &name)
{
    return u"Not shown until the display is updated: "_s + name;
}

/// What the printed list would hold.
inline QString listHolds(int names, const QString &information, bool hasInformation)
{
    const QString count = names == 1 ? u"1 name"_s : QString(QString::number(names) + u" names"_s);
    return count + u" as the grid shows them"_s +
           (hasInformation ? QString(u", with "_s + information) : QString());
}

/// What a run of labels takes.
inline QString labelCount(int labels, int sheets, bool isEnvelope)
{
    const QString count = QString::number(labels);
    if (isEnvelope)
        return labels == 1 ? u"1 envelope"_s : QString(count + u" envelopes"_s);
    const QString what = labels == 1 ? u"1 label on "_s : QString(count + u" labels on "_s);
    return what + (sheets == 1 ? u"1 sheet"_s : QString(QString::number(sheets) + u" sheets"_s));
}

inline QString leftOut(int names)
{
    return names == 1 ? u"1 name without an address is left out"_s
                      : QString(QString::number(names) + u" names without an address are left out"_s);
}

inline QString shortened(int labels)
{
    return labels == 1 ? u"1 label is too small for all of its text"_s
                       : QString(QString::number(labels) + u" labels are too small for all of their text"_s);
}

inline QString noLabels()
{
    return u"None of the ticked names has an address"_s;
}

inline QString nothingTicked()
{
    return u"Tick a name first"_s;
}

inline QString ticked(int ticked, int names)
{
    return u"Names: %1 of %2"_s.arg(ticked).arg(names);
}

} // namespace ViewerLines
