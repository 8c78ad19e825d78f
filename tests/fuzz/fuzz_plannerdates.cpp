// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "planner/model/dayrecord.h"
#include "shell/core/calendardates.h"
#include "shell/core/dates.h"
#include "shell/core/recurrence.h"
#include "storage/ansitext.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

/// Taken off the front of the input; zeros where it is short.
std::int32_t takeNumber(QByteArrayView &bytes)
{
    std::int32_t number = 0;
    const qsizetype length = std::min<qsizetype>(sizeof number, bytes.size());
    std::memcpy(&number, bytes.data(), std::size_t(length));
    bytes = bytes.sliced(length);
    return number;
}

void tryRecord(int number, int year, QByteArrayView bytes)
{
    const QDate date = DayRecord::date(number, year);
    require(!date.isValid() || date.year() == year, "a record's date is of its file's year");
    require(!date.isValid() || DayRecord::number(date) == number, "a date has the record that it came from");
    const QByteArrayView record = DayRecord::ofNumber(bytes, number);
    require(record.size() <= DayRecord::length, "a record is no longer than its length");
}

void tryText(const QString &text, DateStyle style)
{
    const auto date = Dates::parse(text, style);
    require(!date || Dates::parse(Dates::boxText(*date, style), style) == date, "a date comes back");
}

void tryRecurrence(int day, int interval, int kind)
{
    Recurrence recurrence;
    recurrence.kind = Recurrence::Kind(std::abs(kind % 6));
    recurrence.interval = interval;
    recurrence.dayOfMonth = 1 + std::abs(interval % 31);
    recurrence.beginning = CalendarDates::within(QDate::fromJulianDay(day));
    recurrence.yearDay = recurrence.beginning;
    recurrence.occurrences = 40;
    RecurrenceDates dates(withinTenYears(recurrence));
    QDate last = recurrence.beginning.addDays(-1);
    while (const auto date = dates.next()) {
        require(CalendarDates::has(*date), "a recurrence stays within the planner's dates");
        require(*date > last, "a recurrence goes on");
        last = *date;
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArrayView bytes = asBytes(data, size);
    const int first = takeNumber(bytes);
    const int second = takeNumber(bytes);
    const int third = takeNumber(bytes);
    tryRecord(first, second, bytes);
    tryRecord(first % (DayRecord::last + 2), second % (CalendarDates::lastYear + 2), bytes);
    tryRecurrence(first, second, third);
    const QString text = AnsiText::decode(bytes);
    for (const DateStyle style : {DateStyle::Usa, DateStyle::Other})
        tryText(text, style);
    return 0;
}
