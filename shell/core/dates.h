// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QString>

#include <optional>

class QLocale;

/// Dates as the records and pages hold them. Month names are English whatever the system's language.
namespace Dates {

/// Decides the style by how `locale` writes 30 September 2006 in its short form: month first gives `Usa`.
DateStyle styleOf(const QLocale &locale);

/// The same decision from the text itself: the leading number 9 gives `Usa`.
DateStyle styleOfShortDate(QStringView shortDate);

/// A date as it may stand in a record: "Nov-24-1978", "24-Nov-1978", "11/24/1978" (day first under `Other`),
/// "1978-11-24", separators / - . and blanks, full month names; numbers that fit only the other way round are
/// read so. Two-digit years are of 1930 to 2029; where that is after `latest`, of the hundred years before.
std::optional<QDate> parse(QStringView text, DateStyle style, QDate latest = {});

/// What `boxText` looks like, as a hint beside a box: "mmm-dd-yyyy", or "dd-mmm-yyyy" under `Other`.
QString boxForm(DateStyle style);

/// The form that the date boxes keep: "Nov-24-1978", or "24-Nov-1978" under `Other`.
QString boxText(QDate date, DateStyle style);

/// "11/24/2026", or "24/11/2026" under `Other`.
QString numbers(QDate date, DateStyle style);

/// "Saturday, November 21, 2026", or "Saturday, 21 November 2026" under `Other`.
QString longText(QDate date, DateStyle style);

/// "November 21, 2026", or "21 November 2026" under `Other`.
QString monthDayYear(QDate date, DateStyle style);

/// "Sat, Nov 21, 2026", or "Sat, 21 Nov 2026" under `Other`: the status bar's date.
QString statusText(QDate date, DateStyle style);

/// "Nov 21", or "21 Nov" under `Other`.
QString shortText(QDate date, DateStyle style);

/// "Nov 21, 2026", or "21 Nov 2026" under `Other`.
QString shortWithYear(QDate date, DateStyle style);

/// "November 2026".
QString monthYear(QDate date);

/// "November 16 to 22, 2026", or "16 to 22 November 2026" under `Other`; months and years are told where they
/// differ. A single day is its `monthDayYear`.
QString range(QDate from, QDate to, DateStyle style);

/// The day that weeks begin with by the number that the settings have for it: 1 Sunday ... 7 Saturday;
/// anything else is Sunday.
Qt::DayOfWeek weekStart(int number);

/// The first day of the week that `date` is in.
QDate startOfWeek(QDate date, Qt::DayOfWeek firstDay);

/// Whole weeks, 4 to 6 of them.
struct Weeks {
    QDate start;
    int count = 0;

    QDate end() const { return start.addDays(qint64(7) * count - 1); }
};

/// The weeks that the month of `date` lies in.
Weeks weeksOfMonth(QDate date, Qt::DayOfWeek firstDay);

/// The ISO number of the week that begins with `start`, on any day of the week: that of the Monday in it.
int weekNumber(QDate start);

/// "today", "tomorrow", or "on Tuesday" within the six days after `today`; empty for any other date.
QString nearDay(QDate date, QDate today);

/// The next day on or after `today` that has `date`'s day and month; 29 February counts as the 28th in other
/// years.
QDate nextAnniversary(QDate date, QDate today);

} // namespace Dates
