// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// Where a line of a calendar came from.
enum class LineSource { Typed, Planner, ToDo, Birthday, Anniversary, Due, Holiday, Rule };

/// One line in the cell of a day.
struct DayLine {
    LineSource source = LineSource::Typed;
    /// The date that the line came from: a line that was moved stands under another. Invalid for a typed one.
    QDate origin{};
    bool isYearly = false; ///< a typed line that comes along to the next year's calendar
    QString original{};    ///< time, if any, and text as its source had them; empty for a typed line
    QString shown{};       ///< as it stands on paper; empty where a person removed a line that came in

    static constexpr qsizetype most = 200; ///< characters

    bool isTyped() const { return source == LineSource::Typed; }
    bool isRemoved() const { return !isTyped() && shown.isEmpty(); }
    bool isEdited() const { return !isTyped() && shown != original; }

    bool operator==(const DayLine &) const = default;
};

/// Several days under one bar; one that ends before it begins is shown as its first day.
struct CalendarSpan {
    static constexpr int tones = 6;

    QDate from;
    QDate to;
    int tone = 1; ///< 1 to `tones`
    QString text;

    QDate lastDay() const { return qMax(from, to); }
    bool operator==(const CalendarSpan &) const = default;
};

/// Days that come back by a rule: the paper bin every second Tuesday.
struct CalendarRule {
    QString rule; ///< as `DateRule` reads it: "every 2 weeks 2027-01-05"
    QString sign; ///< what stands before the text; empty for none
    QString text;

    bool operator==(const CalendarRule &) const = default;
};

/// The picture of a month.
struct MonthPhoto {
    QString path; ///< relative to the data folder where it lies in it
    QString caption;

    bool operator==(const MonthPhoto &) const = default;
};

/// What a sheet of a calendar holds.
enum class CalendarLayout {
    Month,
    Photo,   ///< a month and its picture
    Quarter, ///< three months
    Year,    ///< on one sheet: numbers, holidays and bars
    Columns, ///< a month, its days down and the persons across
    Pocket   ///< four small months, to be cut out
};

enum class CalendarStyle {
    Classic, ///< a thin grid
    Open,    ///< no lines, large numbers
    Bars     ///< the names of the days as a band
};

/// How the sheets of a calendar look.
struct CalendarLook {
    CalendarLayout layout = CalendarLayout::Month;
    CalendarStyle style = CalendarStyle::Classic;
    QString paper = QStringLiteral("A4"); ///< by its name, one of `CalendarPapers`
    bool isLandscape = true;
    Qt::DayOfWeek firstDay = Qt::Monday;
    bool hasWeekNumbers = false;
    bool hasSmallMonths = false;    ///< the months before and after, at the head
    bool hasNeighbourLines = false; ///< the lines of the days before and after the month
    QString fontFamily{};           ///< empty: the page font's
    double fontPoints = 0;          ///< 0: the page font's

    bool operator==(const CalendarLook &) const = default;
};

/// A calendar for the wall, as its file holds it.
struct WallCalendar {
    static constexpr int firstYear = 1900;
    static constexpr int lastYear = 2199;
    static constexpr int mostMonths = 24;
    static constexpr int mostPersons = 6;

    QString title;
    QDate from; ///< the first of its first month
    int months = 12;
    CalendarLook look;
    QStringList holidaySets; ///< by their names: "Germany"
    QStringList persons;
    QMap<LineSource, QDate> filled; ///< the day of each source's last fill
    QMap<QDate, MonthPhoto> photos; ///< by the first of their month
    QList<CalendarSpan> spans;
    QList<CalendarRule> rules;
    QMap<QDate, QList<DayLine>> days; ///< in the order in which they stand in the cell

    /// The first of month `index`, from 0.
    QDate month(int index) const { return from.addMonths(index); }
    /// The last day of its last month.
    QDate lastDay() const { return from.addMonths(months).addDays(-1); }
    bool has(QDate date) const;

    bool operator==(const WallCalendar &) const = default;
};
