// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

/// What the address book asks and says. The wording is fixed, odd spellings included.
namespace AddressMessages {

using namespace Qt::Literals::StringLiterals;

inline Message lastNameMissing()
{
    return {u"Save"_s, u"Last Name must be entered to save file!"_s};
}

/// All records are taken, the one behind the last too.
inline Message bookFull()
{
    return {u"Save"_s, u"The address book is full: it holds 50,000 entries, and no more can be added.\n"
                       u"Delete an entry that is not needed any more first. What you typed is still here."_s};
}

inline Message clearCurrentData()
{
    return {u"Clear Current Data"_s,
            u"Do you really want to clear currently displayed data?"_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::No};
}

inline Message saveChanges()
{
    return {u"Entry/View Screen"_s,
            u"Save changes made to data?"_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

inline Message noMatch()
{
    return {u"File Search"_s, u"No matching file was found!"_s, Message::Critical};
}

inline Message nameNotSelected()
{
    return {u"View Command"_s, u"Name must first be selected to view"_s};
}

inline Message nothingToView()
{
    return {u"View Data"_s, u"There are currently no files to view,\nuse entry screen to input data."_s};
}

/// `names`: first and last name of the entry.
inline Message deleteEntry(const QString &names)
{
    return {u"Delete Current File"_s,
            u"Do You really want to delete\n"_s + names + u" file?"_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::No};
}

inline Message dataCopied()
{
    return {u"Copy Option"_s, u"Data has been copied to the Windows Clipboard."_s};
}

inline Message telephoneNumberMissing()
{
    return {u"Telephone Dialing Option"_s, u"Please Enter a Valid Telephone Number!"_s};
}

inline Message numberDialed(const QString &number)
{
    return {u"Phone Dialing Function"_s,
            u"Number Dialed: "_s + number +
                u"\nPlease pick up the phone and either press Enter or click OK"
                u"\nOr click Cancel to Hang-up Phone"_s,
            Message::Information,
            {Answer::Ok, Answer::Cancel}};
}

inline Message portNotAvailable(int port)
{
    const QString reason =
        port == 1 ? u"COM1: not available."_s : u"The Current Commport may not be available."_s;
    return {u"Telephone Dialing Option"_s,
            u"CommPort is currently set at: "_s + QString::number(port) + u'\n' + reason +
                u"\nTo work properly your phone and modem must be connected to the same phone line Or "
                u"\nCheck your connects or to change the CommPort property to another port."_s,
            Message::Critical};
}

inline QString newPortPrompt()
{
    return u"ENTER NEW PORT NUMBER BELOW:"_s;
}

inline Message manyPictures()
{
    return {u"Print Pictures Restraint"_s,
            u"Printing many pictures may take several minutes.\n"
            u"It is recommended to print at most sixteen pictures at a time."_s,
            Message::Warning,
            {Answer::Ok, Answer::Cancel}};
}

/// Stands in the picture panel itself.
// Quiet lines for the status bar.

inline QString lineWithoutNumber()
{
    return u"The record number of this line cannot be read: the name is too long for the list."_s;
}

inline QString strayLine()
{
    return u"This line leads to no entry. Delete File takes it off the list."_s;
}

/// Its number leads nowhere, and yet an entry stands where the line does.
inline QString lineBeforeEntry()
{
    return u"This line leads to no entry, but there is one in its place, which nobody would find without the line."_s;
}

inline QString lineOfAnotherEntry()
{
    return u"This line leads to the entry of another name. It can be looked at, but not changed or deleted here."_s;
}

inline QString lineTooLong()
{
    return u"Saved. The name is too long for the name list, which keeps what it had."_s;
}

/// While a name is typed.
inline QString nameTooLong()
{
    return u"This name is too long for the name list: its entry cannot be opened from there."_s;
}

inline QString saveFailed()
{
    return u"The entry could not be saved. What you typed is still here."_s;
}

inline QString markedName()
{
    return u"A last name cannot begin with **** or ####: such entries count as deleted."_s;
}

inline QString portOutOfRange()
{
    return u"(A number from 1 to 32767, please.)"_s;
}

inline QString deleteFailed()
{
    return u"The entry could not be deleted."_s;
}

inline QString entryNotFound()
{
    return u"This line leads to no entry."_s;
}

} // namespace AddressMessages
