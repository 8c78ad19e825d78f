// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Lines that the window writes into the status bar or beside a control; reasons of disabled commands among
/// them.
namespace AddressLines {

using namespace Qt::Literals::StringLiterals;

inline QString nothingSaved()
{
    return u"Nothing saved yet"_s;
}

inline QString onlyLastName()
{
    return u"Only Last Name must be filled in"_s;
}

inline QString saved(const QString &names)
{
    return u"Saved: "_s + names;
}

inline QString deleted(const QString &names)
{
    return u"Deleted: "_s + names;
}

inline QString broughtBack(const QString &names)
{
    return u"Brought back: "_s + names;
}

inline QString bookIsFull()
{
    return u"The address book is full: no record is free for this entry"_s;
}

/// What a picture that is not saved yet is called where it can be undone.
inline QString picture(bool isThere)
{
    return isThere ? u"Picture chosen"_s : u"Picture taken away"_s;
}

inline QString matchOf(int number, int count)
{
    return u"%1 of %2"_s.arg(number).arg(count);
}

inline QString pictureNotFound(const QString &stored)
{
    return u"The picture is not there: "_s + stored;
}

inline QString lockedDate()
{
    return u"Choose Make Modifications to change this date"_s;
}

inline QString nothingOpens(const QString &address)
{
    return u"No program on this computer opens "_s + address;
}

inline QString noAddressKept()
{
    return u"No address is kept for this name"_s;
}

inline QString replaces(const QString &texts)
{
    return u"Replaces: "_s + texts;
}

inline QString sameAddress(const QString &names, bool isReplacing)
{
    return u"Same address as "_s + names +
           (isReplacing ? u". Ctrl+Z in a box brings back what stood there"_s : QString());
}

// Reasons.

inline QString chooseNameFirst()
{
    return u"Choose a name in the list first"_s;
}

inline QString onEntryScreenOnly()
{
    return u"This is done on the Entry Screen"_s;
}

inline QString onViewScreenOnly()
{
    return u"This is done on the View Screen, with a saved entry"_s;
}

inline QString alreadyThere()
{
    return u"This screen is shown already"_s;
}

inline QString bookIsEmpty()
{
    return u"There is no entry yet"_s;
}

inline QString allArePrinted()
{
    return u"All entries are printed: choose the other line to print some"_s;
}

inline QString noPictureToDelete()
{
    return u"The entry has no picture"_s;
}

inline QString pathNotStorable()
{
    return u"The address book cannot keep this path: it is longer than 200 characters, or one of them is not "
           u"in its "
           u"character set"_s;
}

} // namespace AddressLines
