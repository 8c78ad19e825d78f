// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carrecord.h"
#include "cars/model/drivinglog.h"
#include "shell/core/programstate.h"

#include <QDate>
#include <QList>

#include <array>
#include <optional>

/// What a car is paid for.
enum class CostKind { Fuel, Maintenance, Repairs };

inline constexpr std::array costKinds{CostKind::Fuel, CostKind::Maintenance, CostKind::Repairs};

/// What a car cost in some time.
struct CostSums {
    std::array<qint64, costKinds.size()> cents{}; ///< of each kind
    std::optional<double> driven;                 ///< distance, as far as the readings tell

    qint64 of(CostKind kind) const { return cents[std::size_t(kind)]; }
    qint64 total() const;
    /// In cents; nothing where no distance is known.
    std::optional<double> perDistance() const;

    bool operator==(const CostSums &) const = default;
};

/// What a car costs, from its fill-ups and both histories.
class CarCosts
{
public:
    struct Month {
        QDate first;
        CostSums sums;
    };

    /// A year beside the one before it. Of a year that is not over, as many days of both count.
    struct YearAgainstLast {
        int year = 0;
        QDate until; ///< the last day that counts; of the year before, the same day and month
        CostSums sums;
        CostSums before;
    };

    CarCosts(const CarRecord &car, DateStyle style, QDate today);

    /// From `from` to `to`, both included.
    CostSums sums(QDate from, QDate to) const;
    /// Of everything, what has no date or one to come included.
    CostSums all() const;
    /// The average of a whole month, in cents: since the first cost, the month of `today` left out. Nothing
    /// in the first month.
    std::optional<double> perMonth() const;

    /// The years with costs, newest first.
    QList<int> years() const;
    YearAgainstLast yearAgainstLast(int year) const;
    /// The months from `from` on up to that of `to`, fifty years of them at most.
    QList<Month> months(QDate from, QDate to) const;

    /// The first and the last dated cost; invalid without any.
    QDate first() const { return m_costs.isEmpty() ? QDate() : m_costs.first().date; }
    QDate last() const { return m_costs.isEmpty() ? QDate() : m_costs.last().date; }

private:
    struct Cost {
        QDate date;
        CostKind kind;
        qint64 cents;
    };

    DrivingLog m_log;
    QDate m_today;
    QList<Cost> m_costs; ///< those with a date up to today, oldest first
    CostSums m_undated;
};
