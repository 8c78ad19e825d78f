// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/repeat.h"

#include "shell/core/calendardates.h"
#include "shell/core/recurrence.h"

#include <QStringList>

#include <algorithm>
#include <iterator>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;
constexpr int mostDays = 31;
constexpr int leapYear = 2000;

constexpr std::array<QStringView, 4> unitWords{u"day", u"week", u"month", u"year"};
constexpr std::array<QStringView, daysPerWeek> weekdayWords{u"mon", u"tue", u"wed", u"thu",
                                                            u"fri", u"sat", u"sun"};

/// 0 where `digits` are no number from 1 to `most`.
int numberIn(QStringView digits, int most)
{
    const bool areDigits = !digits.isEmpty() && std::ranges::all_of(digits, [](QChar digit) {
        return digit >= u'0' && digit <= u'9';
    });
    const int number = areDigits ? digits.toInt() : 0;
    return number <= most ? number : 0;
}

bool setWeekdays(Repeat &repeat, const QList<QStringView> &words)
{
    for (const QStringView word : words) {
        const auto day = std::ranges::find(weekdayWords, word);
        if (day == weekdayWords.end())
            return false;
        repeat.weekdays[std::size_t(day - weekdayWords.begin())] = true;
    }
    return !words.isEmpty();
}

/// Of "03-15".
bool setYearDay(Repeat &repeat, QStringView text)
{
    if (text.size() != 5 || text[2] != u'-')
        return false;
    repeat.month = numberIn(text.first(2), 12);
    repeat.day = numberIn(text.sliced(3), mostDays);
    return QDate::isValid(leapYear, repeat.month, repeat.day);
}

QDate firstOfMonth(QDate date)
{
    return {date.year(), date.month(), 1};
}

/// Where the rule's counting begins when its first date is `due`: the beginning of that week, month or year,
/// moved on by whole intervals to just before `date`.
QDate beginningNear(const Repeat &repeat, QDate due, QDate date)
{
    const auto steps = [&repeat](qint64 units) {
        return std::max<qint64>(0, units / repeat.interval) * repeat.interval;
    };
    switch (repeat.unit) {
    case Repeat::Day:
        return due.addDays(steps(due.daysTo(date)));
    case Repeat::Week: {
        const QDate monday = due.addDays(1 - due.dayOfWeek());
        return monday.addDays(daysPerWeek * steps(monday.daysTo(date) / daysPerWeek));
    }
    case Repeat::Month: {
        const int months = 12 * (date.year() - due.year()) + date.month() - due.month();
        return firstOfMonth(due).addMonths(int(steps(months)));
    }
    case Repeat::Year:
        break;
    }
    return {due.year() + int(steps(date.year() - due.year())), 1, 1};
}

/// The rule that counts from `beginning`; of weeks, one for each weekday.
std::vector<Recurrence> recurrencesOf(const Repeat &repeat, QDate beginning)
{
    Recurrence recurrence;
    recurrence.interval = repeat.interval;
    recurrence.dayOfMonth = repeat.day;
    recurrence.beginning = beginning;
    recurrence.end = CalendarDates::last();
    if (repeat.unit == Repeat::Month)
        recurrence.kind = Recurrence::Monthly;
    if (repeat.unit == Repeat::Year) {
        recurrence.kind = Recurrence::YearlyOnDate;
        recurrence.yearDay = QDate(leapYear, repeat.month, repeat.day);
    }
    if (repeat.unit != Repeat::Week)
        return {recurrence};
    std::vector<Recurrence> recurrences;
    recurrence.kind = Recurrence::Weekly;
    for (std::size_t day = 0; day < repeat.weekdays.size(); ++day) {
        recurrence.weekday = Qt::DayOfWeek(day + 1);
        if (repeat.weekdays[day])
            recurrences.push_back(recurrence);
    }
    return recurrences;
}

/// The first date of the rule behind `after`; invalid where the calendar ends before.
QDate firstBehind(const Repeat &repeat, QDate due, QDate after)
{
    QDate first;
    for (const Recurrence &recurrence : recurrencesOf(repeat, beginningNear(repeat, due, after))) {
        RecurrenceDates dates(recurrence);
        std::optional<QDate> date = dates.next();
        while (date && *date <= after)
            date = dates.next();
        if (date && (!first.isValid() || *date < first))
            first = *date;
    }
    return first;
}

/// The day of the rule nearest to `wished`, behind `actual`.
QDate nearest(const Repeat &rule, QDate wished, QDate actual)
{
    Repeat every = rule;
    every.interval = 1;
    QDate best;
    QDate date = firstBehind(every, actual.addYears(-1), actual);
    for (; date.isValid(); date = firstBehind(every, date, date)) {
        if (best.isValid() && qAbs(date.daysTo(wished)) > qAbs(best.daysTo(wished)))
            break;
        best = date;
    }
    return best;
}

/// When a thing that was done on `actual` comes back by a rule that counts from that day.
QDate afterDone(const Repeat &repeat, QDate actual)
{
    switch (repeat.unit) {
    case Repeat::Day:
        return actual.addDays(repeat.interval);
    case Repeat::Week:
        // Of several days a week, it is the next one; of a single one, the week is what counts.
        return std::ranges::count(repeat.weekdays, true) > 1
                   ? firstBehind(repeat, actual, actual)
                   : nearest(repeat, actual.addDays(qint64(daysPerWeek) * repeat.interval), actual);
    case Repeat::Month:
        return nearest(repeat, actual.addMonths(repeat.interval), actual);
    case Repeat::Year:
        break;
    }
    return nearest(repeat, actual.addYears(repeat.interval), actual);
}

} // namespace

std::optional<Repeat> Repeat::ofFile(QStringView text)
{
    QList<QStringView> words = text.split(u' ');
    Repeat repeat;
    repeat.isAfter = words.back() == "after"_L1;
    if (repeat.isAfter)
        words.removeLast();
    const auto unitWord = std::ranges::find(unitWords, words.value(0));
    repeat.unit = Unit(unitWord - unitWords.begin());
    repeat.interval = numberIn(words.value(1), longestInterval);
    if (unitWord == unitWords.end() || words.size() != (repeat.unit == Day ? 2 : 3) || repeat.interval == 0)
        return {};
    bool isRead = repeat.unit == Day;
    if (repeat.unit == Week)
        isRead = setWeekdays(repeat, words[2].split(u','));
    if (repeat.unit == Month) {
        repeat.day = numberIn(words[2], mostDays);
        isRead = repeat.day > 0;
    }
    if (repeat.unit == Year)
        isRead = setYearDay(repeat, words[2]);
    return isRead ? std::optional(repeat) : std::nullopt;
}

QString Repeat::toFile() const
{
    QString text = unitWords[unit].toString() + u' ' + QString::number(interval);
    if (unit == Week) {
        QStringList days;
        for (std::size_t i = 0; i < weekdays.size(); ++i) {
            if (weekdays[i])
                days += weekdayWords[i].toString();
        }
        text += u' ' + days.join(u',');
    } else if (unit == Month) {
        text += u' ' + QString::number(day);
    } else if (unit == Year) {
        text += u" %1-%2"_s.arg(month, 2, 10, QChar(u'0')).arg(day, 2, 10, QChar(u'0'));
    }
    return isAfter ? text + u" after"_s : text;
}

QDate Repeat::next(QDate due, QDate actual, QDate today) const
{
    if (!actual.isValid())
        actual = today;
    QDate date;
    if (isAfter)
        date = afterDone(*this, actual);
    else if (due.isValid())
        date = firstBehind(*this, due, std::max(due, today));
    else
        date = firstBehind(*this, actual, std::max(actual, today));
    return CalendarDates::has(date) ? date : QDate();
}

int Repeat::missed(QDate due, QDate today) const
{
    if (isAfter || !due.isValid() || today <= due)
        return 0;
    if (unit == Day)
        return int(due.daysTo(today) / interval);
    int count = 0;
    for (const Recurrence &recurrence : recurrencesOf(*this, beginningNear(*this, due, due))) {
        RecurrenceDates dates(recurrence);
        for (std::optional<QDate> date = dates.next(); date && *date <= today; date = dates.next())
            count += *date > due ? 1 : 0;
    }
    return count;
}
