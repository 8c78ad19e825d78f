// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

/// Days that come back, as files have them: "12-25", "nth 4 thu 11", "easter 39 years 2000-", "07-04 observed
/// sat-1 sun+1", "every 2 weeks 2027-01-05".
struct DateRule {
    enum Kind {
        OnDate,     ///< `month` and `day`; 29 February is the 28th in other years
        Nth,        ///< the `number`th `weekday` of `month`, or of every month
        Last,       ///< the last `weekday` of it
        Before,     ///< the last `weekday` before `month` and `day`
        From,       ///< the first `weekday` on or after them
        Easter,     ///< `number` days after Easter Sunday, or before it
        Orthodox,   ///< the same of the Orthodox church
        EveryWeeks, ///< every `number` weeks from `start` on
        EveryDays
    };
    enum class Moving {
        None,
        Observed, ///< by `shifts` there is a day off on another date; the day itself stays
        Next,     ///< the same on the next weekday that is no holiday, for a Saturday and a Sunday
        Moved     ///< by `shifts` the day itself goes to another date
    };
    /// What becomes of a day that falls on `weekday`.
    struct Shift {
        Qt::DayOfWeek weekday = Qt::Sunday;
        int days = 0;

        bool operator==(const Shift &) const = default;
    };
    struct Day {
        QDate date;
        bool isDayOff = false; ///< not the day itself but the one off for it

        bool operator==(const Day &) const = default;
    };

    static constexpr int mostShift = 31;       ///< days, either way
    static constexpr int mostFromEaster = 300; ///< days, either way
    static constexpr int mostInterval = 9999;

    Kind kind = OnDate;
    int number = 1;
    Qt::DayOfWeek weekday = Qt::Monday;
    int month = 1; ///< 0: every month
    int day = 1;
    QDate start{};
    int firstYear = 0; ///< 0: from any year on
    int lastYear = 0;  ///< 0: for ever
    Moving moving = Moving::None;
    QList<Shift> shifts{};

    /// Nothing where `text` is no rule.
    static std::optional<DateRule> parse(QStringView text);
    /// As `parse` reads it.
    QString text() const;

    /// Its days from `from` to `to`, in order, and the days off for them, but for those of `Moving::Next`.
    QList<Day> ownDays(QDate from, QDate to) const;
    /// All of them. Those of `Moving::Next` are on weekdays for which `isHoliday` is false.
    QList<Day> days(QDate from, QDate to, const std::function<bool(QDate)> &isHoliday = {}) const;
    /// The same as bare dates, each of them once.
    QList<QDate> dates(QDate from, QDate to, const std::function<bool(QDate)> &isHoliday = {}) const;

    static bool isWeekend(QDate date) { return date.dayOfWeek() >= Qt::Saturday; }
    /// The weekday after `date` that is no holiday; no date where there is none within `mostShift` days.
    static QDate nextWeekday(QDate date, const std::function<bool(QDate)> &isHoliday);

    bool operator==(const DateRule &) const = default;

private:
    QDate inMonth(int year, int month) const;
    QDate inYear(int year) const;
    QList<QDate> plainDates(QDate from, QDate to) const;
    QDate shifted(QDate date) const;
};
