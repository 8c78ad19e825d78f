// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

/// The weight tracker's questions and notices. The wording is fixed, odd spellings included.
namespace WeightMessages {

using namespace Qt::Literals::StringLiterals;

inline Message noFiles()
{
    return {u"No Files Found"_s,
            u"Currently there are no Individual Files to view,\n"
            u"please use the Create New File Button\n"
            u"to enter Individual information!"_s,
            Message::Critical};
}

inline Message noneSelected()
{
    return {u"Select Individual Name"_s, u"Please Select a Name First!"_s, Message::Critical};
}

inline Message nothingToSave()
{
    return {u"Save Command"_s, u"There have been no entries/changes made to save!"_s, Message::Critical};
}

inline Message saved()
{
    return {u"Save File Command"_s, u"File has been Saved."_s};
}

inline Message nameMissing()
{
    return {u"No Files Found"_s, u"Please Enter Individual Name to save file."_s, Message::Critical};
}

inline Message newSaved()
{
    return {u"Save File"_s, u"File has been Saved."_s};
}

inline Message deleteFile(const QString &name)
{
    return {u"Delete Current File"_s,
            u"Do You really want to delete\n"_s + name + u" file and all its contents?"_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::No};
}

inline Message rowAdded()
{
    return {u"Add Row Command"_s, u"Row has been added to the end of the Grid and File Saved!"_s};
}

inline Message deleteRow()
{
    return {u"Delete Highlighted Entry"_s,
            u"Do you really want to delete the highlighted Entry?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message rowDeleted()
{
    return {u"Delete Row Command"_s, u"Row has been Deleted and File Saved"_s};
}

/// Before the first save of a file that has `count` weigh-ins behind those it counts.
inline Message takeUncounted(qsizetype count)
{
    const QString rows = count == 1 ? u"1 more weigh-in"_s : u"%1 more weigh-ins"_s.arg(count);
    return {
        u"Weigh-Ins Not Counted"_s,
        u"Take in the weigh-ins that the file does not count?\n"
        u"The file has %1 than it counts. Yes takes in what is there, No leaves it out of the file."_s.arg(
            rows),
        Message::Question,
        {Answer::Yes, Answer::No, Answer::Cancel},
        Answer::Yes};
}

inline Message saveChanges()
{
    return {u"Weight Tracker Information"_s,
            u"Save changes made to Weight Tracker before next action or exiting?"_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

inline QString entryError()
{
    return u"Entry Error"_s;
}

inline Message dateToCome()
{
    return {entryError(), u"The Date entry Cannot Exceed the Current Date!"_s, Message::Critical};
}

inline Message invalidDate()
{
    return {entryError(), u"Invalid Date Entered!"_s, Message::Critical};
}

inline Message invalidWeight()
{
    return {entryError(), u"This is no weight: a weight is a number such as 180 or 178.5."_s,
            Message::Critical};
}

inline QString nameTitle()
{
    return u"Individual Name"_s;
}

/// `characters`: those that no file can hold.
inline Message nameForeign(const QString &characters)
{
    return {nameTitle(), u"A name cannot hold these characters: %1\nPlease choose others."_s.arg(characters),
            Message::Critical};
}

/// `characters`: those that the name of a file cannot hold.
inline Message nameNoFile(const QString &characters)
{
    return {nameTitle(),
            u"The name becomes the name of a file, which cannot hold these characters: %1\n"
            u"Please choose others."_s.arg(characters),
            Message::Critical};
}

inline Message nameHidden()
{
    return {nameTitle(),
            u"The name becomes the name of a file, and cannot begin with a point.\nPlease choose another."_s,
            Message::Critical};
}

inline Message nameTooLong()
{
    return {nameTitle(), u"This name is too long: it has 100 characters at most.\nPlease shorten it."_s,
            Message::Critical};
}

/// A device, or a file of the program's own.
inline Message nameReserved(const QString &name)
{
    return {nameTitle(),
            u"A file called \"%1\" is needed for something else.\nPlease choose another name."_s.arg(name),
            Message::Critical};
}

inline Message nameTaken(const QString &name)
{
    return {nameTitle(), u"There is a file for \"%1\" already.\nPlease choose another name."_s.arg(name),
            Message::Critical};
}

} // namespace WeightMessages
