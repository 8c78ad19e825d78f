// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/typeddate.h"

#include "shell/core/calendardates.h"
#include "shell/core/dates.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;
constexpr int mostDays = 9999;
constexpr qsizetype shortestName = 3;
constexpr int yearsAhead = 2;
constexpr int yearsBack = 1;

std::optional<int> days(QStringView digits)
{
    bool isNumber = false;
    const int days = digits.trimmed().toInt(&isNumber);
    const bool isPlain = !digits.isEmpty() && (digits[0].isDigit() || digits[0].isSpace());
    return isNumber && isPlain && days <= mostDays ? std::optional(days) : std::nullopt;
}

/// The next such day behind `today`, by the English name of which three letters are typed at least.
std::optional<QDate> weekday(QStringView word, QDate today)
{
    if (word.size() < shortestName)
        return {};
    for (int ahead = 1; ahead <= daysPerWeek; ++ahead) {
        const QDate day = today.addDays(ahead);
        if (QLocale::c().dayName(day.dayOfWeek()).startsWith(word, Qt::CaseInsensitive))
            return day;
    }
    return {};
}

std::optional<QDate> named(const QString &text, QDate today)
{
    if (text == u"today"_s)
        return today;
    if (text == u"tomorrow"_s)
        return today.addDays(1);
    if (text == u"yesterday"_s)
        return today.addDays(-1);
    if (text == u"next week"_s)
        return today.addDays(daysPerWeek);
    if (text == u"next month"_s)
        return today.addMonths(1);
    return weekday(text.startsWith("next "_L1) ? QStringView(text).sliced(5) : QStringView(text), today);
}

/// "12 July", "Jul 12", "7/12": the next such day. February 29 is the next one that there is.
std::optional<QDate> withoutYear(const QString &text, DateStyle style, QDate today)
{
    constexpr int leapYears = 8; // at most, from one to the next
    const bool hasTwoParts =
        text.split(u' ', Qt::SkipEmptyParts).size() == 2 || text.count(u'/') == 1 || text.count(u'-') == 1;
    for (int year = today.year(); hasTwoParts && year <= today.year() + leapYears; ++year) {
        const QString full = text + (text.contains(u'/') ? u'/' : u' ') + QString::number(year);
        const auto date = Dates::parse(full, style);
        if (date && *date >= today)
            return date;
    }
    return {};
}

} // namespace

std::optional<QDate> TypedDate::read(QStringView text, DateStyle style, QDate today)
{
    const QString typed = text.toString().simplified().toLower();
    std::optional<QDate> date;
    if (typed.startsWith(u'+')) {
        if (const auto ahead = days(QStringView(typed).sliced(1)))
            date = today.addDays(*ahead);
    } else {
        date = named(typed, today);
    }
    if (!date)
        date = Dates::parse(typed, style);
    if (!date)
        date = withoutYear(typed, style, today);
    return date && CalendarDates::has(*date) ? date : std::nullopt;
}

std::optional<int> TypedDate::readOffset(QStringView text)
{
    const QStringView typed = text.trimmed();
    if (typed.startsWith(u'-') || typed.startsWith(u'\u2212')) {
        const std::optional<int> before = days(typed.sliced(1));
        return before ? std::optional(-*before) : std::nullopt;
    }
    return days(typed.startsWith(u'+') ? typed.sliced(1) : typed);
}

QString TypedDate::question(QDate date, QDate today)
{
    const bool isUnlikely = date > today.addYears(yearsAhead) || date < today.addYears(-yearsBack);
    return date.isValid() && isUnlikely ? u"Is the year right?"_s : QString();
}

QString TypedDate::refusal()
{
    return u"That is no date. Try \"Fri\", \"+3\", \"next week\" or a day with its month."_s;
}
