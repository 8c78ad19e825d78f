// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carwords.h"
#include "shell/core/message.h"

/// The automobile tracker's questions and notices. The wording is fixed, odd spellings included.
namespace CarMessages {

using namespace Qt::Literals::StringLiterals;

inline Message noFiles()
{
    return {u"No Files Found"_s, u"Currently there are no Auto Files to view,\n"
                                 u"please use the Create New File Button\n"
                                 u"to enter new auto information!"_s};
}

inline Message noneSelected()
{
    return {u"Select Auto File Name"_s, u"Please Select an Auto File Name First!"_s};
}

inline Message nameMissing()
{
    return {u"Missing Auto File Name"_s, u"Please Enter File Name before proceeding further!"_s,
            Message::Critical};
}

inline Message nameTooLong()
{
    return {u"Auto File Name"_s,
            u"This name is too long: a File Name has 100 characters at most.\nPlease shorten it."_s,
            Message::Critical};
}

/// The list marks a free place by this word.
inline Message nameReserved()
{
    return {u"Auto File Name"_s,
            u"A File Name cannot begin with \"Empty\".\n"
            u"The list of vehicles marks its free places with this word. Please choose another name."_s,
            Message::Critical};
}

/// `characters`: those that no file can hold.
inline Message nameForeign(const QString &characters)
{
    return {u"Auto File Name"_s,
            u"A File Name cannot hold these characters: "_s + characters + u"\nPlease choose others."_s,
            Message::Critical};
}

inline Message makeMissing()
{
    return {u"Missing Make or Model"_s, u"Please Enter Make or Model Name before proceeding further!"_s,
            Message::Critical};
}

inline Message odometerMissing()
{
    return {u"Missing Odometer Reading"_s,
            u"Please Enter Current Odometer Reading before proceeding further!"_s, Message::Critical};
}

inline Message createFile()
{
    return {u"Create New File"_s,
            u"Is that correct?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::Yes};
}

inline Message deleteFile(const QString &name)
{
    QString shown = name.left(30);
    while (shown.endsWith(u' '))
        shown.chop(1);
    return {u"Delete Current File"_s,
            u"Do You really want to delete\n"_s + shown + u" file and all its contents?"_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::No};
}

inline Message deleteEntry()
{
    return {u"Delete Selected Entry"_s,
            u"Do You really want to delete the selected entry from this Auto file?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

/// A row of the schedule or of the fuel tracker is selected.
inline Message noEntryToDelete()
{
    return {u"Delete Selected Entry"_s, u"If you are trying to select an Entry to Delete,\n"
                                        u"Deletions can only be done in these two files!"_s};
}

inline Message saveChanges()
{
    return {u"Auto Maintenance"_s,
            u"Save changes made to Auto Maintenance before next action or exiting?"_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

inline QString entryError()
{
    return u"Entry Error"_s;
}

inline Message aboveCurrentReading(DistanceUnit unit)
{
    return {entryError(), CarWords::mileage(unit) + u" entry Cannot Exceed the Current Odometer Reading!"_s,
            Message::Critical};
}

inline Message invalidDate()
{
    return {entryError(), u"Invalid Date Entered!"_s, Message::Critical};
}

inline Message dateToCome()
{
    return {entryError(), u"The Date entry Cannot Exceed the Current Date!"_s, Message::Critical};
}

/// A reading or the amount of fuel is missing in the fuel calculator.
inline Message calculatorIncomplete(DistanceUnit unit)
{
    return {entryError(),
            u"Both Current and Previous Odometer Readings must be entered,\nand also the "_s +
                CarWords::fuelAmount(unit) + u" of Gas!"_s,
            Message::Critical};
}

/// `question`: whether a maintenance is the last time of an action of the schedule.
inline Message lastTime(const QString &question)
{
    return {u"Maintenance Schedule"_s, question, Message::Question, {Answer::Yes, Answer::No}, Answer::Yes};
}

inline Message fuelFull()
{
    return {entryError(),
            u"The fuel tracker is full: it holds 3,000 fill-ups, and no more can be added.\n"
            u"Delete fill-ups that are not needed any more first."_s,
            Message::Critical};
}

} // namespace CarMessages
