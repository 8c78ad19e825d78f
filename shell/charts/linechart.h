// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// What a chart of lines shows: values along days or numbers, each series named at the end of its line.
struct LineChart {
    struct Point {
        double x = 0; ///< a number, or a day: see `dayAt`
        double y = 0;
        QString text = {};       ///< the value as it is shown; where it is empty, as the axis writes it
        QString note = {};       ///< why it is not like the others, "partial fill-up"; such a point is hollow
        bool startsAnew = false; ///< no line leads here from the point before

        bool operator==(const Point &) const = default;
    };
    struct Series {
        QString name;        ///< may be empty where there is only one
        QList<Point> points; ///< in the order of x
        /// The course of another series, between its points: a line without points of its own.
        bool isTrend = false;
        bool operator==(const Series &) const = default;
    };
    /// One of the points.
    struct Spot {
        qsizetype series = 0;
        qsizetype point = 0;
        bool operator==(const Spot &) const = default;
    };
    /// A value that lies across the chart, named at its edge: a goal is dashed, a beginning dotted.
    struct Level {
        enum Kind { Goal, Beginning };
        QString name;
        double y = 0;
        Kind kind = Goal;
        bool isInTable = false; ///< a column of the table: it has this value at every point
        bool operator==(const Level &) const = default;
    };
    /// What the first series, or its trend, is expected to reach: a dashed line leads there, and the stretch
    /// in which it may be is shaded.
    struct Forecast {
        QString name; ///< "Goal about Sep 4, 2026"
        double y = 0;
        double from = 0;
        double at = 0;
        double to = 0;
        bool operator==(const Forecast &) const = default;
    };
    /// An axis, and how its numbers are written: "$1,250.00", "31.4 mpg".
    struct Axis {
        QString name;
        QString before = {}; ///< "$"
        QString behind = {}; ///< " mpg"
        int decimals = 0;    ///< of a value that is read out; the ticks have as many as they need
        QString text(double value) const;
        /// At a tick, among others at this step: without what stands behind.
        QString tickText(double value, double step) const;
        bool operator==(const Axis &) const = default;
    };
    enum class Across { Days, Numbers };

    QString title;           ///< the question that it answers
    QString caption;         ///< a quiet line under it; may be empty
    QString nothing;         ///< what stands in a chart without points: "No fill-ups yet"
    Axis across;             ///< of the numbers, or of the days, which need no name
    Axis up;                 ///< of the values
    bool isFromZero = false; ///< the values are shown from 0 on
    Across kind = Across::Days;
    DateStyle style = DateStyle::Usa; ///< of the days
    QString dayForm = {};             ///< how a day is written, "MMM-dd-yy"; empty: as `style` has it
    bool ticksAtPoints = false;       ///< days stand at the first series' points, as many as have room
    QList<Series> series;
    QList<Level> levels;
    std::optional<Forecast> forecast; ///< behind the last point; only where there are points

    /// The x of a day.
    static double dayAt(QDate date) { return double(date.toJulianDay()); }
    static QDate dateAt(double x) { return QDate::fromJulianDay(qRound64(x)); }

    bool isEmpty() const;
    /// What the line to the forecast begins with; nothing where there is none.
    std::optional<Spot> forecastStart() const;
    /// The axis' name in a table.
    QString acrossName() const;
    /// "Nov 3, 2026", or as its form has it; or the number as its axis writes it.
    QString acrossText(double x) const;
    const Point &at(const Spot &spot) const { return series[spot.series].points[spot.point]; }
    /// "Volvo, Nov 3, 2026: 31.4 mpg, partial fill-up"; the name only where there are several series.
    QString textOf(const Spot &spot) const;
    /// Title, axes, series and ranges in words.
    QString description() const;

    /// The same figures as a table: a row for each x, a column for each series behind the first.
    QStringList headings() const;
    QList<QStringList> rows() const;

    bool operator==(const LineChart &) const = default;
};
