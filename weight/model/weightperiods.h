// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "weight/model/weighttrend.h"

#include <QStringList>

#include <optional>

/// What a stretch of days came to, to be compared with the others.
struct WeightPeriod {
    enum class Length { FourWeeks, Month, Year };

    QDate from;
    QDate to; ///< the last day, even where it is still to come
    Length length = Length::Month;
    int days = 0; ///< with a weight
    double average = 0;
    double lowest = 0;
    double highest = 0;
    /// Since the last weight before it; without one, since its first.
    std::optional<double> change;
    /// The average against that of the period before; nothing where that has no weights.
    std::optional<double> against;

    /// The newest first; those without a weight are left out. Four weeks are counted back from today.
    static QList<WeightPeriod> all(const WeightSeries &byDay, Length length, QDate today);

    /// "August 2026", "2026", "Jul 17 to Aug 13, 2026"; one that goes on is so far.
    QString name(DateStyle style, QDate today) const;
    /// What a table has of it, under its headings.
    static QStringList headings();
    QStringList row(DateStyle style, QDate today) const;

    bool operator==(const WeightPeriod &) const = default;
};
