// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/dates.h"

#include "shell/core/datetoken.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cstddef>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int lastYearOfTwoThousands = 29;
constexpr int daysPerWeek = 7;
constexpr std::size_t partCount = 3;

using Parts = std::array<DateToken, partCount>;

bool isSeparator(const DateToken &token)
{
    return token.kind == DateToken::Other && QByteArrayView("/-., ").contains(token.character);
}

/// A month's name, or a number that can be a day, a month or a year.
bool isPart(const DateToken &token)
{
    if (token.kind == DateToken::Number)
        return token.length <= 4 && token.length != 3;
    return token.kind == DateToken::Word && token.value > 0;
}

bool isName(const DateToken &part)
{
    return part.kind == DateToken::Word;
}

/// The three parts of `text`; nothing when there are more or fewer, or anything else stands between them.
std::optional<Parts> partsOf(QByteArrayView text)
{
    Parts parts;
    std::size_t count = 0;
    while (!text.isEmpty()) {
        const DateToken token = DateToken::take(text);
        if (count > 0 && isSeparator(token))
            continue;
        if (count == partCount || !isPart(token))
            return {};
        parts[count++] = token;
    }
    return count == partCount ? std::optional(parts) : std::nullopt;
}

int fullYear(const DateToken &year)
{
    if (year.isYear())
        return year.value;
    return year.value + (year.value <= lastYearOfTwoThousands ? 2000 : 1900);
}

std::optional<QDate> dateOf(const DateToken &year, int month, const DateToken &day, QDate latest)
{
    if (isName(year) || isName(day) || day.isYear() || (year.isYear() && year.value == 0))
        return {};
    QDate date(fullYear(year), month, day.value);
    if (!year.isYear() && latest.isValid() && date > latest)
        date = QDate(date.year() - 100, month, day.value);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

std::optional<QDate> namedMonth(const Parts &parts, QDate latest)
{
    if (isName(parts[0])) // Nov 24 1978
        return dateOf(parts[2], parts[0].value, parts[1], latest);
    if (!isName(parts[1]))
        return {};
    return parts[0].isYear() ? dateOf(parts[0], parts[1].value, parts[2], latest)  // 1978 Nov 24
                             : dateOf(parts[2], parts[1].value, parts[0], latest); // 24 Nov 1978
}

std::optional<QDate> numbersOnly(const Parts &parts, DateStyle style, QDate latest)
{
    if (parts[0].isYear()) // 1978-11-24
        return parts[1].isYear() ? std::nullopt : dateOf(parts[0], parts[1].value, parts[2], latest);
    const DateToken &first = parts[0], &second = parts[1], &year = parts[2];
    const DateToken &month = style == DateStyle::Usa ? first : second;
    const DateToken &day = style == DateStyle::Usa ? second : first;
    if (month.isYear() || day.isYear())
        return {};
    const bool fitsOnlySwapped = month.value > 12 && day.value <= 12;
    return fitsOnlySwapped ? dateOf(year, day.value, month, latest) : dateOf(year, month.value, day, latest);
}

QString english(QDate date, QStringView format)
{
    return QLocale::c().toString(date, format);
}

} // namespace

DateStyle Dates::styleOf(const QLocale &locale)
{
    return styleOfShortDate(locale.toString(QDate(2006, 9, 30), QLocale::ShortFormat));
}

DateStyle Dates::styleOfShortDate(QStringView shortDate)
{
    int number = 0;
    for (const QChar character : shortDate.first(std::min<qsizetype>(shortDate.size(), 8))) {
        if (!character.isDigit())
            break;
        number = number * 10 + character.digitValue();
    }
    return number == 9 ? DateStyle::Usa : DateStyle::Other;
}

std::optional<QDate> Dates::parse(QStringView text, DateStyle style, QDate latest)
{
    if (text.size() > DateToken::longestDate)
        return {};
    const auto parts = partsOf(QByteArrayView(DateToken::bytes(text.trimmed())));
    if (!parts)
        return {};
    return std::ranges::any_of(*parts, isName) ? namedMonth(*parts, latest)
                                               : numbersOnly(*parts, style, latest);
}

QString Dates::boxText(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"MMM-dd-yyyy" : u"dd-MMM-yyyy");
}

QString Dates::boxForm(DateStyle style)
{
    return style == DateStyle::Usa ? u"mmm-dd-yyyy"_s : u"dd-mmm-yyyy"_s;
}

QString Dates::numbers(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"MM/dd/yyyy" : u"dd/MM/yyyy");
}

QString Dates::longText(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"dddd, MMMM d, yyyy" : u"dddd, d MMMM yyyy");
}

QString Dates::monthDayYear(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"MMMM d, yyyy" : u"d MMMM yyyy");
}

QString Dates::statusText(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"ddd, MMM d, yyyy" : u"ddd, d MMM yyyy");
}

QString Dates::shortText(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"MMM d" : u"d MMM");
}

QString Dates::shortWithYear(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"MMM d, yyyy" : u"d MMM yyyy");
}

QString Dates::monthYear(QDate date)
{
    return english(date, u"MMMM yyyy");
}

QString Dates::range(QDate from, QDate to, DateStyle style)
{
    QString end = monthDayYear(to, style);
    if (from == to)
        return end;
    const bool sameYear = from.year() == to.year();
    const bool sameMonth = sameYear && from.month() == to.month();
    if (style == DateStyle::Usa) {
        const QString begin = english(from, sameYear ? u"MMMM d" : u"MMMM d, yyyy");
        return begin + u" to "_s + (sameMonth ? english(to, u"d, yyyy") : end);
    }
    return english(from, sameMonth ? u"d" : sameYear ? u"d MMMM" : u"d MMMM yyyy") + u" to "_s + end;
}

Qt::DayOfWeek Dates::weekStart(int number)
{
    return number >= 2 && number <= 7 ? Qt::DayOfWeek(number - 1) : Qt::Sunday;
}

QDate Dates::startOfWeek(QDate date, Qt::DayOfWeek firstDay)
{
    return date.addDays(-((date.dayOfWeek() - firstDay + daysPerWeek) % daysPerWeek));
}

Dates::Weeks Dates::weeksOfMonth(QDate date, Qt::DayOfWeek firstDay)
{
    const QDate first(date.year(), date.month(), 1);
    const QDate start = startOfWeek(first, firstDay);
    return {start, int(start.daysTo(first) + first.daysInMonth() + daysPerWeek - 1) / daysPerWeek};
}

int Dates::weekNumber(QDate start)
{
    return startOfWeek(start.addDays(daysPerWeek - 1), Qt::Monday).weekNumber();
}

QString Dates::nearDay(QDate date, QDate today)
{
    if (!date.isValid() || !today.isValid())
        return {};
    const qint64 days = today.daysTo(date);
    if (days == 0)
        return u"today"_s;
    if (days == 1)
        return u"tomorrow"_s;
    return days > 1 && days < daysPerWeek ? u"on "_s + QLocale::c().dayName(date.dayOfWeek()) : QString();
}

QDate Dates::nextAnniversary(QDate date, QDate today)
{
    if (!date.isValid() || !today.isValid())
        return {};
    const auto inYear = [date](int year) {
        const QDate day(year, date.month(), date.day());
        return day.isValid() ? day : QDate(year, 2, 28);
    };
    const QDate thisYear = inYear(today.year());
    return thisYear >= today ? thisYear : inYear(today.year() + 1);
}
