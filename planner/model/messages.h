// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/appointment.h"
#include "shell/core/message.h"
#include "shell/core/recurrence.h"

#include <QDate>
#include <QLocale>

#include <optional>

/// The planner's questions and notices.
namespace PlannerMessages {

using namespace Qt::Literals::StringLiterals;

inline Message daySaved()
{
    return {u"Save File Command"_s, u"Entries Have Been Time Sorted and File Saved."_s};
}

inline Message saveBeforeNextAction()
{
    return {u"Personal Planner"_s,
            u"Save changes/entries before next action?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::Yes};
}

inline Message saveBeforeExiting()
{
    return {u"Personal Planner"_s,
            u"Save changes/entries before exiting?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::Yes};
}

inline Message nothingToSave()
{
    return {u"Save"_s,
            u"There are currently No Entries to Save!\nSave anyway?"_s,
            Message::Information,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message clearDay(const QString &date)
{
    return {u"Clear Entries"_s,
            u"Clear all Entries for "_s + date + u'?',
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

inline Message nothingToClear()
{
    return {u"Clear Entries"_s, u"There are currently No Entries to Clear!"_s};
}

inline Message nothingToCopy()
{
    return {u"Copy all entries for pasteing to another day"_s, u"No Entries to Copy have been found!"_s};
}

inline Message noRecurrenceSelected()
{
    return {u"OK Button Selection"_s, u"No Recurrence Option was selected!\n"
                                      u"Please Select Option Desired before clicking the OK Button."_s};
}

inline Message tenYearLimit()
{
    return {u"Recurrence Option Maximum Year Requirement"_s,
            u"Program years have exceeded 10 year maximum!\nAppropriate changes will been made."_s};
}

inline Message removeRecurrence()
{
    return {u"Remove This Recurrence"_s,
            u"Are you sure we want to remove the recurrences of this appointment?\n"
            u"Note: The Removal action will check each day between the Selected\n"
            u"          Beginning Date and End Date and remove the appointment."_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

/// What an insert says at its end; nothing to say when nothing was made and nothing was full.
inline std::optional<Message> recurrenceReport(int made, int full)
{
    if (made == 0 && full == 0)
        return {};
    QString text;
    if (full == 1) {
        text = u"There was 1 date that was full and this Appointment\ncould not entered for that date!\n\n"_s;
    } else if (full > 1) {
        text = u"There were "_s + QString::number(full) + u" dates that were full and this Appointment\n"_s +
               u"could not entered for those dates!\n\n"_s;
    }
    text += u"The recurrence option did make "_s + QString::number(made) + u" entry(ies).\n"_s +
            u"[Note: If Appointment already exists it was not entered again!]"_s;
    return Message{u"Recurrence Option"_s, text};
}

inline Message recurrenceStopped(QDate last, RecurrenceAction action)
{
    return {
        u"Recurrence Interruption!"_s,
        u"Recurrence File Update has been Stopped Prior to Completion!\n"_s +
            u"Not all updates have been accomplished!\n"_s +
            (action == RecurrenceAction::Insert ? u"Last entry date was: "_s : u"Last entry date was:"_s) +
            QLocale::c().toString(last, u"ddd - MM/dd/yyyy"_s),
        Message::Critical};
}

inline Message importToDoItems()
{
    return {u"To Do List Import Function"_s,
            u"Do you want to Import To Do List Items?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::Yes};
}

inline Message nothingToImport()
{
    return {u"Import To Do List Items"_s, u"No To Do List Items to Import have been found!"_s};
}

inline QString whichDay()
{
    return u"Which day do you want to see?"_s;
}

inline QString whichDates()
{
    return u"Which dates do you want to print?"_s;
}

} // namespace PlannerMessages
