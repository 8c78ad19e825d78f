// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// What a chart of bars shows, one below the other: each with its name, its amount and its share.
struct BarChart {
    struct Bar {
        QString name;
        double value = 0; ///< its length; below 0 it has none
        QString amount;   ///< the value as it is shown
        QString share;    ///< of the whole, as it is shown; may be empty

        /// "Rent: $11,760, 40.00%"
        QString text() const;
        bool operator==(const Bar &) const = default;
    };

    QString title;   ///< the question that it answers
    QString caption; ///< what the shares are of
    QString names;   ///< what the axis of the names is called
    QString values;  ///< what the axis of the values is called
    QString unit;    ///< in front of the numbers on that axis
    QList<Bar> bars; ///< from the top

    double largest() const;
    /// "$1,500": a number on the axis of the values.
    QString axisText(double value) const;
    /// Title, axes, series and ranges in words.
    QString description() const;

    bool operator==(const BarChart &) const = default;
};
