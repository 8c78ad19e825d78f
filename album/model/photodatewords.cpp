// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photodatewords.h"

#include "shell/core/calendardates.h"
#include "shell/core/dates.h"
#include "shell/core/timeofday.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using Precision = PhotoDate::Precision;

constexpr qsizetype shortestMonth = 3;
constexpr int yearsPerCentury = 100;
constexpr int firstSeason = 21;
constexpr int winter = 24;
constexpr int firstPhotograph = 1826;
constexpr std::array<QStringView, 4> seasons{u"spring", u"summer", u"autumn", u"winter"};
constexpr std::array<QStringView, 8> decades{u"twenties", u"thirties",  u"forties",  u"fifties",
                                             u"sixties",  u"seventies", u"eighties", u"nineties"};

/// Reads what is typed, as EDTF; empty where it is no date. All texts are in small letters.
class TypedDates
{
public:
    TypedDates(DateStyle style, QDate today, bool maySmallNumbers)
        : m_style(style)
        , m_today(today)
        , m_maySmallNumbers(maySmallNumbers)
    {}

    QByteArray read(const QString &text) const;

private:
    QByteArray span(const QString &text) const;
    QByteArray part(QString text) const;
    QByteArray exact(const QString &text) const;
    QByteArray monthOrSeason(const QStringList &words) const;
    QByteArray monthOfNumbers(const QString &text) const;
    QByteArray decade(QString text) const;
    QByteArray year(QString text, bool mayBeSmall) const;

    DateStyle m_style;
    QDate m_today;
    bool m_maySmallNumbers; ///< "74" alone is a year
};

bool isNumber(QStringView text)
{
    return !text.isEmpty() &&
           std::ranges::all_of(text, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
}

QByteArray digits(int number, int width)
{
    return QByteArray::number(number).rightJustified(width, '0');
}

/// "1982" of "1982/83", in which a winter lies; the same where it is anything else.
QString firstOfTwo(const QString &years)
{
    const QStringList both = years.split(u'/');
    const bool areYears = both.size() == 2 && isNumber(both[0]) && isNumber(both[1]) && both[1].size() < 5;
    const bool isNext =
        areYears && (both[0].toInt() + 1) % yearsPerCentury == both[1].toInt() % yearsPerCentury;
    return isNext ? both[0] : years;
}

/// Takes the first of these words off the beginning of `text`.
bool takeWord(QString &text, std::initializer_list<const char16_t *> words)
{
    for (const char16_t *word : words) {
        const QStringView beginning(word);
        if (text.size() > beginning.size() && text.startsWith(beginning)) {
            text = text.sliced(beginning.size()).trimmed();
            return true;
        }
    }
    return false;
}

int monthNumber(QStringView word)
{
    if (word.endsWith(u'.'))
        word.chop(1);
    for (int month = 1; month <= 12 && word.size() >= shortestMonth; ++month) {
        if (QLocale::c().monthName(month).startsWith(word, Qt::CaseInsensitive))
            return month;
    }
    return 0;
}

int seasonNumber(QStringView word)
{
    const auto found = std::ranges::find(seasons, word == u"fall" ? QStringView(u"autumn") : word);
    return found == seasons.end() ? 0 : firstSeason + int(found - seasons.begin());
}

/// "1974", "'74" and, where that may be, "74": of the past.
QByteArray TypedDates::year(QString text, bool mayBeSmall) const
{
    mayBeSmall = takeWord(text, {u"'", u"\u2019"}) || mayBeSmall;
    if (!isNumber(text) || (text.size() != 4 && (text.size() != 2 || !mayBeSmall)))
        return {};
    const int number = text.toInt();
    if (text.size() == 4)
        return number >= CalendarDates::firstYear ? text.toLatin1() : QByteArray();
    const int century = m_today.year() - m_today.year() % yearsPerCentury;
    return QByteArray::number(century + number > m_today.year() ? century - yearsPerCentury + number
                                                                : century + number);
}

/// "1980s", "80s", "'80s", "80's", "eighties", "19th century".
QByteArray TypedDates::decade(QString text) const
{
    takeWord(text, {u"the "});
    const auto named = std::ranges::find(decades, QStringView(text));
    if (named != decades.end())
        return "19" + QByteArray::number(2 + (named - decades.begin())) + 'X';
    if (text.endsWith(u"th century") && isNumber(text.chopped(10)) && text.size() == 12)
        return digits(text.first(2).toInt() - 1, 2) + "XX";
    text.remove(u'\'').remove(u'\u2019');
    if (!text.endsWith(u's') || !isNumber(text.chopped(1)) || text.at(text.size() - 2) != u'0')
        return {};
    const QByteArray first = year(text.chopped(1), true);
    return first.isEmpty() ? first : first.chopped(1) + 'X';
}

/// "July 1974", "summer of 82", "1982 summer".
QByteArray TypedDates::monthOrSeason(const QStringList &words) const
{
    if (words.size() != 2)
        return {};
    for (const auto &[name, number] : {std::pair(words[0], words[1]), std::pair(words[1], words[0])}) {
        const int month = std::max(monthNumber(name), seasonNumber(name));
        const QString first = month == winter ? firstOfTwo(number) : number;
        const QByteArray yearText = month > 0 ? year(first, true) : QByteArray();
        if (!yearText.isEmpty())
            return yearText + '-' + digits(month, 2);
    }
    return {};
}

/// "7/1974"
QByteArray TypedDates::monthOfNumbers(const QString &text) const
{
    const QStringList numbers = text.split(u'/');
    const int month = numbers.size() == 2 && isNumber(numbers[0]) ? numbers[0].toInt() : 0;
    const QByteArray yearText = month >= 1 && month <= 12 ? year(numbers[1], false) : QByteArray();
    return yearText.isEmpty() ? yearText : yearText + '-' + digits(month, 2);
}

/// A day, with or without a time behind it.
QByteArray TypedDates::exact(const QString &text) const
{
    if (text == u"today"_s || text == u"yesterday"_s)
        return PhotoDate::of(m_today.addDays(text == u"today"_s ? 0 : -1)).edtf();
    if (const auto day = Dates::parse(text, m_style, m_today); day && CalendarDates::has(*day))
        return PhotoDate::of(*day).edtf();
    // The longest time that stands at the end of a day.
    for (qsizetype blank = text.indexOf(u' '); blank > 0; blank = text.indexOf(u' ', blank + 1)) {
        QString dayText = text.first(blank);
        if (dayText.endsWith(u','))
            dayText.chop(1);
        const QTime time = TimeOfDay::of(QStringView(text).sliced(blank));
        const auto day = time.isValid() ? Dates::parse(dayText, m_style, m_today) : std::nullopt;
        if (day && CalendarDates::has(*day))
            return PhotoDate::of(*day, time).edtf();
    }
    return {};
}

QByteArray TypedDates::part(QString text) const
{
    const PhotoDate known = PhotoDate::fromEdtf(text.toUpper().toUtf8());
    if (const PhotoDate::Parts parts = known.parts();
        parts.form == PhotoDate::Form::One && text.size() <= PhotoDate::width)
        return known.edtf();
    const bool isAbout = takeWord(text, {u"about ", u"around ", u"approximately ", u"approx. ", u"circa ",
                                         u"ca. ", u"ca ", u"c. ", u"c ", u"~"});
    QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    words.removeOne(u"of"_s);
    QByteArray found = year(text, m_maySmallNumbers || isAbout);
    if (found.isEmpty())
        found = monthOrSeason(words);
    if (found.isEmpty())
        found = monthOfNumbers(text);
    if (found.isEmpty())
        found = decade(text);
    if (found.isEmpty())
        found = exact(text);
    return found.isEmpty() || !isAbout ? found : found + '~';
}

/// "1970 to 1975", "between 1970 and 1975", "1970-75".
QByteArray TypedDates::span(const QString &text) const
{
    QString rest = text;
    const bool isBetween = takeWord(rest, {u"between "});
    const bool isFrom = !isBetween && takeWord(rest, {u"from "});
    const std::array<QString, 6> signs{
        isBetween ? u" and "_s : u" to "_s, u" until "_s, u"/"_s, u" - "_s, u"\u2013"_s, u"-"_s};
    for (const QString &sign : signs) {
        const qsizetype at = rest.indexOf(sign);
        if (at < 1)
            continue;
        const QByteArray from = part(rest.first(at).trimmed());
        QString end = rest.sliced(at + sign.size()).trimmed();
        if (isNumber(end) && end.size() == 2 && from.size() == 4)
            end.prepend(QString::fromLatin1(from.first(2)));
        const QByteArray to = part(end);
        QByteArray both = from + '/' + to;
        if (!from.isEmpty() && !to.isEmpty() && PhotoDate::fromEdtf(both).isUnderstood())
            return both;
    }
    const QByteArray since = isFrom ? part(rest) : QByteArray();
    return since.isEmpty() ? since : since + "/..";
}

QByteArray TypedDates::read(const QString &text) const
{
    if (const PhotoDate known = PhotoDate::fromEdtf(text.toUpper().toUtf8());
        known.isUnderstood() && text.contains(u"..") && text.size() <= PhotoDate::width)
        return known.edtf();
    QString rest = text;
    if (takeWord(rest, {u"before ", u"until ", u"till ", u"up to "})) {
        const QByteArray to = part(rest);
        return to.isEmpty() ? to : "../" + to;
    }
    if (takeWord(rest, {u"after ", u"since "})) {
        const QByteArray from = part(rest);
        return from.isEmpty() ? from : from + "/..";
    }
    const QByteArray one = part(text);
    return one.isEmpty() ? span(text) : one;
}

std::optional<PhotoDate> readTyped(QStringView text, DateStyle style, QDate today, bool maySmallNumbers)
{
    constexpr qsizetype longest = 80;
    const QString typed = text.left(longest + 1).toString().simplified().toLower();
    if (typed.isEmpty())
        return PhotoDate();
    const QByteArray found =
        typed.size() > longest ? QByteArray() : TypedDates(style, today, maySmallNumbers).read(typed);
    if (found.isEmpty() || found.size() > PhotoDate::width)
        return {};
    const PhotoDate date = PhotoDate::fromEdtf(found);
    return date.isUnderstood() ? std::optional(date) : std::nullopt;
}

QString centuryWords(int year)
{
    const int number = year / yearsPerCentury + 1;
    const int last = number % 10;
    const bool isTeen = number / 10 == 1;
    const QString ending = isTeen || last == 0 || last > 3 ? u"th"_s
                           : last == 1                     ? u"st"_s
                           : last == 2                     ? u"nd"_s
                                                           : u"rd"_s;
    return u"the %1%2 century"_s.arg(number).arg(ending);
}

QString partWords(const PhotoDate::Part &part, DateStyle style, bool withTime)
{
    QString words;
    switch (part.precision) {
    case Precision::Century:
        words = centuryWords(part.year);
        break;
    case Precision::Decade:
        words = u"the %1s"_s.arg(part.year);
        break;
    case Precision::Year:
        words = QString::number(part.year);
        break;
    case Precision::Season:
        words = u"%1 %2"_s.arg(seasons[std::size_t(part.month - firstSeason)]).arg(part.year);
        break;
    case Precision::Month:
        words = Dates::monthYear(part.first());
        break;
    case Precision::Day:
    case Precision::Moment:
        words = Dates::monthDayYear(part.first(), style);
        break;
    }
    if (withTime && part.precision == Precision::Moment) {
        const QTime time = QTime(0, 0).addSecs(part.second);
        words += u", "_s + QLocale::c().toString(time, style == DateStyle::Usa ? u"h:mm AP"_s : u"HH:mm"_s);
    }
    return part.isAbout ? QString(u"about "_s + words) : words;
}

QString wordsOf(const PhotoDate &date, DateStyle style, bool withTime)
{
    const PhotoDate::Parts parts = date.parts();
    switch (parts.form) {
    case PhotoDate::Form::None:
        break;
    case PhotoDate::Form::Unknown:
        return QString::fromUtf8(date.edtf());
    case PhotoDate::Form::One:
        return partWords(parts.from, style, withTime);
    case PhotoDate::Form::Before:
        return u"before "_s + partWords(parts.to, style, withTime);
    case PhotoDate::Form::After:
        return u"since "_s + partWords(parts.from, style, withTime);
    case PhotoDate::Form::Span:
        return partWords(parts.from, style, withTime) + u" to "_s + partWords(parts.to, style, withTime);
    }
    return {};
}

/// What "about" may be off by.
QDate widened(QDate day, const PhotoDate::Part &part, int direction)
{
    constexpr int years = 2;
    constexpr int months = 3;
    constexpr int days = 15;
    if (!part.isAbout || !day.isValid())
        return day;
    switch (part.precision) {
    case Precision::Century:
    case Precision::Decade:
        break;
    case Precision::Year:
        return day.addYears(direction * years);
    case Precision::Season:
    case Precision::Month:
        return day.addMonths(direction * months);
    case Precision::Day:
    case Precision::Moment:
        return day.addDays(qint64(direction) * days);
    }
    return day;
}

} // namespace

/// Nothing was photographed before there were photographs, nor in a time to come.
std::optional<PhotoDate> PhotoDateWords::read(QStringView text, DateStyle style, QDate today)
{
    const auto date = readTyped(text, style, today, true);
    if (!date || date->isNone())
        return date;
    const bool isToCome = date->first().isValid() && date->first() > today;
    const bool isTooEarly = date->last().isValid() && date->last().year() < firstPhotograph;
    return isToCome || isTooEarly ? std::nullopt : date;
}

std::optional<PhotoDate> PhotoDateWords::readSought(QStringView text, DateStyle style, QDate today)
{
    const auto date = readTyped(text, style, today, false);
    return date && !date->isNone() ? date : std::nullopt;
}

QString PhotoDateWords::words(const PhotoDate &date, DateStyle style)
{
    return wordsOf(date, style, true);
}

QString PhotoDateWords::heading(const PhotoDate &date, DateStyle style)
{
    return date.isNone() ? u"Without a Date"_s : wordsOf(date, style, false);
}

PhotoDateWords::Days PhotoDateWords::mayMean(const PhotoDate &date)
{
    const PhotoDate::Parts parts = date.parts();
    if (parts.form == PhotoDate::Form::None || parts.form == PhotoDate::Form::Unknown)
        return {};
    const QDate first = widened(parts.first(), parts.from, -1);
    const QDate last = widened(parts.last(), parts.to, 1);
    return {(first.isValid() ? first : CalendarDates::first()).toJulianDay(),
            (last.isValid() ? last : CalendarDates::last()).toJulianDay()};
}

bool PhotoDateWords::mayBe(const PhotoDate &date, const PhotoDate &sought)
{
    return mayMean(date).overlap(mayMean(sought));
}

QString PhotoDateWords::refusal()
{
    return u"That is no date. Try \"1974\", \"about 1974\", \"summer 1982\", \"the 1980s\" or a day."_s;
}
