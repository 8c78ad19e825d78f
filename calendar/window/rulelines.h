// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

#include <QString>

/// What the panels of rules and holidays say quietly, and what they ask.
namespace RuleLines {

using namespace Qt::Literals::StringLiterals;

inline QString ruleHint()
{
    return u"as it stands in the file"_s;
}

inline QString asTheRuleSays()
{
    return u"As the rule says"_s;
}

inline QString noRule(const QString &text)
{
    return u"! This is no rule: %1"_s.arg(text.simplified());
}

/// Of a line of the household's file, counted from 1; 0: of none.
inline QString cannotBeRead(int line, const QString &rule)
{
    return (line > 0 ? u"! Line %1 cannot be read: "_s.arg(line) : u"! Cannot be read: "_s) +
           rule.simplified();
}

/// How many lines of the household's file cannot be read, and where the first is.
inline QString faults(qsizetype count, int line)
{
    return count == 1 ? u"Line %1 of Holiday1.Fil cannot be read and is left out"_s.arg(line)
                      : u"%1 lines of Holiday1.Fil cannot be read and are left out, the first is line %2"_s
                            .arg(count)
                            .arg(line);
}

inline QString noRuleYet()
{
    return u"No day comes back by itself yet."_s;
}

inline QString noHoliday()
{
    return u"There is no holiday in this set."_s;
}

inline QString chooseOne()
{
    return u"Choose one first"_s;
}

inline QString nothingToSave()
{
    return u"Nothing has been changed"_s;
}

inline QString needsWords()
{
    return u"Say what the day is called."_s;
}

inline QString needsYear()
{
    return u"A year has four digits, and the last one does not come before the first."_s;
}

inline QString nameIsThere(const QString &name)
{
    return u"There are holidays called \u201c%1\u201d already."_s.arg(name);
}

inline QString needsName()
{
    return u"Give the holidays a name."_s;
}

inline QString asItCame()
{
    return u"They are as they came with the program"_s;
}

inline QString saved()
{
    return u"The holidays are saved; calendars take them when they are filled"_s;
}

inline QString changedMeanwhile()
{
    return u"Another program has changed the holidays. Save again to write over that."_s;
}

inline QString notSaved()
{
    return u"The disk refused to save the holidays"_s;
}

inline Message leaveHolidays()
{
    return {u"Holidays"_s,
            u"Leave without saving the changed holidays?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message leaveRules()
{
    return {u"Rules"_s,
            u"Leave without taking over the changed rules?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

} // namespace RuleLines
