// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/daterulewords.h"

#include "shell/core/dates.h"

#include <QLocale>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

QString nameOf(Qt::DayOfWeek weekday)
{
    return QLocale::c().dayName(weekday);
}

QString monthName(int month)
{
    return month == 0 ? u"every month"_s : QLocale::c().monthName(month);
}

/// "the day after", "2 days before".
QString distance(int days)
{
    const QString side = days < 0 ? u" before"_s : u" after"_s;
    return (qAbs(days) == 1 ? u"the day"_s : u"%1 days"_s.arg(qAbs(days))) + side;
}

QString fromEaster(const DateRule &rule)
{
    const QString easter = rule.kind == DateRule::Orthodox ? u"Orthodox Easter Sunday"_s : u"Easter Sunday"_s;
    return rule.number == 0 ? easter : distance(rule.number) + u' ' + easter;
}

QString every(const DateRule &rule, DateStyle style)
{
    const QString unit =
        rule.kind == DateRule::EveryWeeks ? nameOf(Qt::DayOfWeek(rule.start.dayOfWeek())) : u"day"_s;
    const QString from = u" from "_s + Dates::monthDayYear(rule.start, style) + u" on"_s;
    if (rule.number <= 1)
        return u"every "_s + unit + from;
    if (rule.number == 2)
        return u"every second "_s + unit + from;
    if (rule.kind == DateRule::EveryWeeks)
        return u"every %1 weeks on "_s.arg(rule.number) + unit + from;
    return u"every %1 days"_s.arg(rule.number) + from;
}

QString days(const DateRule &rule, DateStyle style)
{
    QString date = DateRuleWords::dayOfYear(rule.month, rule.day, style);
    switch (rule.kind) {
    case DateRule::OnDate:
        return date;
    case DateRule::Nth:
        return u"the "_s + DateRuleWords::ordinal(rule.number) + u' ' + nameOf(rule.weekday) + u" of "_s +
               monthName(rule.month);
    case DateRule::Last:
        return u"the last "_s + nameOf(rule.weekday) + u" of "_s + monthName(rule.month);
    case DateRule::Before:
        return u"the last "_s + nameOf(rule.weekday) + u" before "_s + date;
    case DateRule::From:
        return u"the first "_s + nameOf(rule.weekday) + u" from "_s + date + u" on"_s;
    case DateRule::Easter:
    case DateRule::Orthodox:
        return fromEaster(rule);
    case DateRule::EveryWeeks:
    case DateRule::EveryDays:
        return every(rule, style);
    }
    return {};
}

QString years(const DateRule &rule)
{
    if (rule.firstYear == 0 && rule.lastYear == 0)
        return {};
    if (rule.firstYear == rule.lastYear)
        return u", in %1 only"_s.arg(rule.firstYear);
    if (rule.lastYear == 0)
        return u", since %1"_s.arg(rule.firstYear);
    if (rule.firstYear == 0)
        return u", until %1"_s.arg(rule.lastYear);
    return u", %1 to %2"_s.arg(rule.firstYear).arg(rule.lastYear);
}

/// "; on a Saturday the day before is off too".
QString moving(const DateRule &rule)
{
    if (rule.moving == DateRule::Moving::Next)
        return u"; on a weekend the next weekday is off too"_s;
    QStringList parts;
    for (const DateRule::Shift &shift : rule.shifts)
        parts.append(u"on a "_s + nameOf(shift.weekday) + u' ' + distance(shift.days));
    if (parts.isEmpty())
        return {};
    return u"; "_s + parts.join(u", "_s) +
           (rule.moving == DateRule::Moving::Moved ? u" instead"_s : u" is off too"_s);
}

} // namespace

QString DateRuleWords::ordinal(int number)
{
    static constexpr std::array<QStringView, 5> names{u"first", u"second", u"third", u"fourth", u"fifth"};
    return number >= 1 && number <= int(names.size()) ? names[std::size_t(number - 1)].toString() : QString();
}

QString DateRuleWords::dayOfYear(int month, int day, DateStyle style)
{
    return style == DateStyle::Usa ? monthName(month) + u' ' + QString::number(day)
                                   : QString::number(day) + u' ' + monthName(month);
}

QString DateRuleWords::of(const DateRule &rule, DateStyle style)
{
    QString words = days(rule, style) + years(rule) + moving(rule);
    words.front() = words.front().toUpper();
    return words;
}
