// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photodate.h"

#include "shell/core/calendardates.h"

#include <QDateTime>

#include <algorithm>
#include <limits>
#include <optional>

namespace {

constexpr int firstSeason = 21;
constexpr int lastSeason = 24;
constexpr int monthsPerSeason = 3;
constexpr int firstMonthOfSpring = 3;
constexpr int secondsPerMinute = 60;
constexpr int secondsPerHour = 3600;
constexpr int secondsPerDay = 86400;

/// Reads a text from its beginning to its end.
class Reader
{
public:
    explicit Reader(QByteArrayView text)
        : m_rest(text)
    {}

    bool isAtEnd() const { return m_rest.isEmpty(); }
    bool take(char character)
    {
        if (m_rest.isEmpty() || m_rest.front() != character)
            return false;
        m_rest = m_rest.sliced(1);
        return true;
    }
    /// So many digits; -1 where they are not there.
    int number(qsizetype digits)
    {
        int value = 0;
        if (m_rest.size() < digits)
            return -1;
        for (qsizetype i = 0; i < digits; ++i) {
            if (m_rest[i] < '0' || m_rest[i] > '9')
                return -1;
            value = 10 * value + (m_rest[i] - '0');
        }
        m_rest = m_rest.sliced(digits);
        return value;
    }

private:
    QByteArrayView m_rest;
};

/// "198X", "19XX" or a year of four digits.
bool readYear(Reader &reader, PhotoDate::Part &part)
{
    const int century = reader.number(2);
    if (century < 0)
        return false;
    if (reader.take('X')) {
        part.precision = PhotoDate::Precision::Century;
        part.year = 100 * century;
        return reader.take('X');
    }
    const int decade = reader.number(1);
    if (decade < 0)
        return false;
    if (reader.take('X')) {
        part.precision = PhotoDate::Precision::Decade;
        part.year = 100 * century + 10 * decade;
        return true;
    }
    const int year = reader.number(1);
    part.year = 100 * century + 10 * decade + year;
    return year >= 0;
}

/// "T14:03:00", whose seconds may be missing; where the clock stood does not count.
bool readTime(Reader &reader, PhotoDate::Part &part)
{
    const int hour = reader.number(2);
    const int minute = reader.take(':') ? reader.number(2) : -1;
    const int second = reader.take(':') ? reader.number(2) : 0;
    if (!QTime::isValid(hour, minute, second))
        return false;
    part.precision = PhotoDate::Precision::Moment;
    part.second = hour * secondsPerHour + minute * secondsPerMinute + second;
    if (reader.take('Z'))
        return true;
    if (!reader.take('+') && !reader.take('-'))
        return true;
    return reader.number(2) >= 0 && (!reader.take(':') || reader.number(2) >= 0);
}

bool readDay(Reader &reader, PhotoDate::Part &part)
{
    part.precision = PhotoDate::Precision::Day;
    part.day = reader.number(2);
    if (!QDate::isValid(part.year, part.month, part.day))
        return false;
    return !reader.take('T') || readTime(reader, part);
}

bool readMonth(Reader &reader, PhotoDate::Part &part)
{
    part.month = reader.number(2);
    if (part.month >= firstSeason && part.month <= lastSeason) {
        part.precision = PhotoDate::Precision::Season;
        return true;
    }
    part.precision = PhotoDate::Precision::Month;
    if (part.month < 1 || part.month > 12)
        return false;
    return !reader.take('-') || readDay(reader, part);
}

std::optional<PhotoDate::Part> readPart(QByteArrayView text)
{
    Reader reader(text);
    PhotoDate::Part part;
    const bool isRead = readYear(reader, part) && (part.precision != PhotoDate::Precision::Year ||
                                                   !reader.take('-') || readMonth(reader, part));
    // Whether somebody is sure of it or not: nobody tells the signs apart.
    part.isAbout = reader.take('~') || reader.take('?') || reader.take('%');
    const bool isYear = part.year >= CalendarDates::firstYear;
    return isRead && isYear && reader.isAtEnd() ? std::optional(part) : std::nullopt;
}

bool isOpen(QByteArrayView text)
{
    return text.isEmpty() || text == "..";
}

PhotoDate::Parts readParts(QByteArrayView text)
{
    using Form = PhotoDate::Form;
    const qsizetype slash = text.indexOf('/');
    if (slash < 0) {
        const auto part = readPart(text);
        return part ? PhotoDate::Parts{Form::One, *part, *part} : PhotoDate::Parts{.form = Form::Unknown};
    }
    const QByteArrayView begin = text.first(slash);
    const QByteArrayView end = text.sliced(slash + 1);
    const auto from = readPart(begin);
    const auto to = readPart(end);
    if (from && to && from->first() <= to->last())
        return {Form::Span, *from, *to};
    if (from && isOpen(end))
        return {Form::After, *from, {}};
    if (to && isOpen(begin))
        return {Form::Before, {}, *to};
    return {.form = Form::Unknown};
}

/// The later, the narrower a date is: of those that begin together the vaguer stands first.
int narrowness(const PhotoDate::Parts &parts)
{
    return parts.form == PhotoDate::Form::One ? 1 + int(parts.from.precision) : 0;
}

} // namespace

QDate PhotoDate::Part::first() const
{
    switch (precision) {
    case Precision::Season:
        return {year, firstMonthOfSpring + monthsPerSeason * (month - firstSeason), 1};
    case Precision::Month:
        return {year, month, 1};
    case Precision::Day:
    case Precision::Moment:
        return {year, month, day};
    case Precision::Century:
    case Precision::Decade:
    case Precision::Year:
        break;
    }
    return {year, 1, 1};
}

QDate PhotoDate::Part::last() const
{
    switch (precision) {
    case Precision::Century:
        return {year + 99, 12, 31};
    case Precision::Decade:
        return {year + 9, 12, 31};
    case Precision::Year:
        return {year, 12, 31};
    case Precision::Season:
        return first().addMonths(monthsPerSeason).addDays(-1);
    case Precision::Month:
        return {year, month, QDate(year, month, 1).daysInMonth()};
    case Precision::Day:
    case Precision::Moment:
        break;
    }
    return {year, month, day};
}

PhotoDate PhotoDate::fromEdtf(QByteArrayView text)
{
    PhotoDate date;
    const qsizetype end = text.indexOf('\0');
    const QByteArrayView used = end < 0 ? text : text.first(end);
    std::copy_n(used.data(), std::min(used.size(), width), date.m_text.begin());
    return date;
}

PhotoDate PhotoDate::of(QDate day, QTime time)
{
    if (!CalendarDates::has(day))
        return {};
    const QByteArray text = day.toString(Qt::ISODate).toLatin1();
    return fromEdtf(time.isValid() ? text + 'T' + time.toString(Qt::ISODate).toLatin1() : text);
}

QByteArray PhotoDate::edtf() const
{
    const auto end = std::ranges::find(m_text, '\0');
    return {m_text.data(), end - m_text.begin()};
}

PhotoDate::Parts PhotoDate::parts() const
{
    if (isNone())
        return {};
    const auto end = std::ranges::find(m_text, '\0');
    return readParts(QByteArrayView(m_text.data(), end - m_text.begin()));
}

bool PhotoDate::isUnderstood() const
{
    const Form form = parts().form;
    return form != Form::None && form != Form::Unknown;
}

QDate PhotoDate::day() const
{
    const Parts date = parts();
    const bool isDay = date.form == Form::One && date.from.precision >= Precision::Day && !date.from.isAbout;
    return isDay ? date.from.first() : QDate();
}

QTime PhotoDate::time() const
{
    const Parts date = parts();
    const bool isMoment = date.form == Form::One && date.from.precision == Precision::Moment;
    return isMoment ? QTime(0, 0).addSecs(date.from.second) : QTime();
}

QDate PhotoDate::Parts::first() const
{
    const bool hasFirst = form == Form::One || form == Form::Span || form == Form::After;
    return hasFirst ? from.first() : QDate();
}

QDate PhotoDate::Parts::last() const
{
    if (form == Form::Before)
        return to.first().addDays(-1);
    return form == Form::One || form == Form::Span ? to.last() : QDate();
}

int PhotoDate::year() const
{
    const Parts date = parts();
    if (date.form == Form::One)
        return date.from.precision >= Precision::Year ? date.from.year : 0;
    const bool isOne = date.form == Form::Span && date.from.first().year() == date.to.last().year();
    return isOne ? date.from.year : 0;
}

qint64 PhotoDate::sortKey() const
{
    constexpr qint64 places = 16; // for how narrow a date is
    const Parts date = parts();
    if (date.form == Form::None || date.form == Form::Unknown)
        return std::numeric_limits<qint64>::max();
    const bool isBefore = date.form == Form::Before;
    const QDate day = isBefore ? date.last() : date.from.first();
    const qint64 place = isBefore ? places - 1 : narrowness(date);
    return (day.toJulianDay() * places + place) * secondsPerDay + date.from.second;
}

PhotoDate PhotoDate::shifted(qint64 seconds) const
{
    const QDate day = this->day();
    if (!day.isValid())
        return *this;
    const QTime time = this->time();
    const QDateTime moved = QDateTime(day, time.isValid() ? time : QTime(0, 0), Qt::UTC);
    if (!time.isValid())
        return of(moved.addDays(seconds / secondsPerDay).date());
    const QDateTime then = moved.addSecs(seconds);
    return CalendarDates::has(then.date()) ? of(then.date(), then.time()) : *this;
}
