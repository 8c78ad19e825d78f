// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/histories.h"
#include "shell/core/programstate.h"

#include <QDate>
#include <QList>
#include <QSet>

#include <optional>

/// A row of the fuel tracker in numbers. What its texts do not tell is worked out from those before it.
struct FillUp {
    enum class Kind {
        Counted, ///< its consumption counts in the averages
        Partial, ///< not filled up: its fuel counts with that of the next one that was
        Missing, ///< a fill-up before it was not entered: readings do not follow, or its distance is too long
        Unlikely,   ///< less than half of what is usual
        Incomplete, ///< no distance or no fuel
    };

    Kind kind = Kind::Incomplete;
    QDate date; ///< invalid where there is none
    std::optional<double> reading;
    std::optional<double> driven;
    std::optional<double> used;
    std::optional<qint64> cents;
    /// Distance for each gallon or litre, since it was last filled up. Also known of some that do not count.
    std::optional<double> economy;
};

/// What some fill-ups come to.
struct FuelSums {
    int fillUps = 0;
    double driven = 0;
    double used = 0;
    qint64 cents = 0;
    // The averages, of the fill-ups that count.
    std::optional<double> economy;
    std::optional<double> best;
    std::optional<double> worst;
    std::optional<double> centsPerDistance;
    std::optional<double> centsPerAmount; ///< price of a gallon or litre
    std::optional<double> centsPerFillUp;
};

/// Distance, consumption and cost of each fill-up of a car, and what they come to.
class FuelFigures
{
public:
    FuelFigures() = default;
    FuelFigures(const FuelLog &log, DateStyle style);

    /// One for each row of the log.
    const QList<FillUp> &fillUps() const { return m_fillUps; }
    /// The rows by date; a row without one stays behind the one it follows.
    const QList<int> &inOrder() const { return m_order; }

    /// Of all fill-ups.
    FuelSums sums() const { return sums({}, {}); }
    /// Of those from `from` to `to`, both included; an invalid date is no limit.
    FuelSums sums(QDate from, QDate to) const;

    /// The row of the newest fill-up that counts; -1: none.
    int newest() const;

    /// What the row comes to when something was typed into it: the reading before it is that of the last row
    /// of `before`, distance and consumption are worked out. What cannot be, stays as it is.
    static FuelRow completed(FuelRow row, const FuelLog &before);

    /// The number of a text, or the sum of a typed one: "8.1+3.2".
    static std::optional<double> sumOf(const QString &text);

private:
    /// What a consumption is worked out from: a fill-up and the partial ones before it.
    struct Stretch {
        double driven = 0;
        double used = 0;
        qint64 cents = 0;
        bool hasCosts = true;
    };

    void findOrder();
    void read(const FuelRow &row, int index);
    bool isOverlapping(double previous, int index);
    void add(int index, Stretch &stretch) const;
    void workOut();
    void judge();
    void findMissing(const QSet<int> &notFull, double most);

    QList<FillUp> m_fillUps;
    QList<int> m_order;
    QList<Stretch> m_stretches;   ///< one for each row
    QList<double> m_own;          ///< the distance that each row has for itself
    std::optional<double> m_last; ///< the reading that the next row should begin with
};
