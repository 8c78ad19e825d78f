// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

#include <optional>

/// When an appointment comes back: a kind with its interval, from a beginning date to an end date or for a
/// number of occurrences.
struct Recurrence {
    enum Kind {
        Daily,    ///< every `interval` days
        Weekdays, ///< Monday to Friday
        Weekly,   ///< every `interval` weeks on `weekday`, from the first such day on or after the beginning
        Monthly,  ///< day `dayOfMonth` of every `interval` months; the last day of shorter months
        Yearly,   ///< the beginning's day and month every `interval` years
        YearlyOnDate ///< `yearDay`'s day and month every `interval` years
    };

    Kind kind = Daily;
    int interval = 1;
    Qt::DayOfWeek weekday = Qt::Monday;
    int dayOfMonth = 1;
    QDate yearDay;
    QDate beginning;
    std::optional<QDate> end; ///< either this ...
    int occurrences = 0;      ///< ... or this many dates

    bool operator==(const Recurrence &) const = default;
};

/// The dates of a recurrence, one after another. 29 February falls on the 28th in other years. Every date
/// that is given uses up an occurrence; looking for weekdays never goes over more than twice as many days as
/// occurrences were asked for. An interval below 1 or an invalid beginning gives no date, and the last
/// day of the calendar ends every recurrence.
class RecurrenceDates
{
public:
    explicit RecurrenceDates(const Recurrence &recurrence);

    /// The next date; nothing after the last.
    std::optional<QDate> next();

    /// Roughly how many dates there are: what a progress bar counts to.
    int estimate() const;

    /// Whether the planner's last day came before the number of occurrences was given.
    bool isCutShort() const;

private:
    QDate dateAt(int step) const;
    QDate first() const;
    std::optional<QDate> nextWeekday();
    bool isOver(QDate date) const;

    Recurrence m_recurrence;
    QDate m_first;
    int m_step = 0;
    int m_given = 0;
};

/// The longest that a recurrence may last.
inline constexpr int longestRecurrenceDays = 3652;

/// `recurrence` brought within ten years: the number of occurrences lowered, or the end date pulled in.
Recurrence withinTenYears(const Recurrence &recurrence);

/// Whether a daily recurrence asks for more than ten years; a single far one does and stays as it is.
bool exceedsTenYears(const Recurrence &recurrence);
