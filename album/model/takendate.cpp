// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/takendate.h"

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The year of the first photograph.
constexpr int firstYear = 1826;
/// What a record has room for.
constexpr qsizetype mostText = 32;

bool isPossible(QDate date, QDate today)
{
    // Where the day begins sooner it is tomorrow already.
    return date.isValid() && date.year() >= firstYear && date <= today.addDays(1) &&
           date != QDate(1970, 1, 1);
}

QString moment(QDate date, QTime time)
{
    const QString day = date.toString(u"yyyy-MM-dd"_s);
    return time.isValid() ? QString(day + u'T' + time.toString(u"HH:mm:ss"_s)) : day;
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/// The number that `width` digits from `at` on are; moves behind them.
std::optional<int> takeNumber(QStringView text, qsizetype &at, int width)
{
    if (text.size() - at < width)
        return {};
    int number = 0;
    for (int i = 0; i < width; ++i) {
        const QChar digit = text[at + i];
        if (!isDigit(digit))
            return {};
        number = number * 10 + digit.digitValue();
    }
    at += width;
    return number;
}

/// Moves behind one of `characters`, if one is there.
bool skipOne(QStringView text, qsizetype &at, QStringView characters)
{
    if (at >= text.size() || !characters.contains(text[at]))
        return false;
    ++at;
    return true;
}

/// "20190704" or "2019-07-04", with any of `between`.
QDate takeDay(QStringView text, qsizetype &at, QStringView between)
{
    const auto year = takeNumber(text, at, 4);
    const bool isParted = skipOne(text, at, between);
    const auto month = year ? takeNumber(text, at, 2) : std::nullopt;
    if (!month || skipOne(text, at, between) != isParted)
        return {};
    const auto day = takeNumber(text, at, 2);
    return day ? QDate(*year, *month, *day) : QDate();
}

/// "153012" or "15.30.12".
QTime takeTime(QStringView text, qsizetype &at, QStringView between)
{
    const auto hour = takeNumber(text, at, 2);
    skipOne(text, at, between);
    const auto minute = hour ? takeNumber(text, at, 2) : std::nullopt;
    skipOne(text, at, between);
    const auto second = minute ? takeNumber(text, at, 2) : std::nullopt;
    return second ? QTime(*hour, *minute, *second) : QTime();
}

/// Whether `text` begins with a year that is possible, and holds only what dates of any certainty are made
/// of.
bool isUncertainDate(const QString &text, QDate today)
{
    const auto fits = [](QChar character) {
        return isDigit(character) || u"X~?%/.-:T"_s.contains(character);
    };
    if (text.isEmpty() || text.size() > mostText || !std::ranges::all_of(text, fits))
        return false;
    qsizetype at = text.startsWith(u"../"_s) ? 3 : 0;
    if (const auto year = takeNumber(text, at, 4))
        return *year >= firstYear && *year <= today.year();
    at = text.startsWith(u"../"_s) ? 3 : 0;
    const auto decade = takeNumber(text, at, 3);
    return decade && *decade * 10 >= firstYear - 9 && *decade * 10 <= today.year() && text.sliced(at) == u'X';
}

} // namespace

QString TakenDate::fromCamera(const QByteArray &text, QDate today)
{
    const QString words = QString::fromLatin1(text).trimmed();
    qsizetype at = 0;
    const QDate date = takeDay(words, at, u":-/.");
    if (!isPossible(date, today))
        return {};
    if (!skipOne(words, at, u" T"))
        return moment(date, {});
    return moment(date, takeTime(words, at, u":"));
}

QString TakenDate::fromProgram(const QByteArray &text, QDate today)
{
    const QString words = QString::fromLatin1(text).trimmed();
    qsizetype at = 0;
    const QDate date = takeDay(words, at, u"-");
    const bool isDayAlone = date.isValid() && at == words.size();
    if (date.isValid() && (isDayAlone || words[at] == u'T')) {
        if (!isPossible(date, today))
            return {};
        if (isDayAlone)
            return moment(date, {});
        ++at;
        const QString minutes = words.sliced(at, std::min<qsizetype>(5, words.size() - at));
        const QTime time = takeTime(words, at, u":");
        return moment(date, time.isValid() ? time : QTime::fromString(minutes, u"HH:mm"_s));
    }
    return isUncertainDate(words, today) ? words : QString();
}

QString TakenDate::fromName(const QString &fileName, QDate today)
{
    for (qsizetype start = 0; start + 8 <= fileName.size(); ++start) {
        if (!isDigit(fileName[start]) || (start > 0 && isDigit(fileName[start - 1])))
            continue;
        qsizetype at = start;
        const QDate date = takeDay(fileName, at, u"-_.");
        if (!isPossible(date, today))
            continue;
        const qsizetype behind = at;
        const bool isParted = skipOne(fileName, at, u"-_ T");
        const QTime time = takeTime(fileName, at, u".:-_");
        const bool endsThere = behind == fileName.size() || !isDigit(fileName[behind]);
        if (time.isValid() && (isParted || !endsThere))
            return moment(date, time);
        if (endsThere)
            return moment(date, {});
    }
    return {};
}

QString TakenDate::fromTime(const QDateTime &time, QDate today)
{
    const QDateTime local = time.toLocalTime();
    return isPossible(local.date(), today) ? moment(local.date(), local.time()) : QString();
}
