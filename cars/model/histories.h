// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <array>

/// A line of the maintenance history or of the repairs and other expenditures. All are texts as they were
/// typed.
struct HistoryRow {
    QString odometer;
    QString date;
    QString description;
    QString cost;

    bool isEmpty() const { return *this == HistoryRow(); }
    bool operator==(const HistoryRow &) const = default;
};

/// A fill-up. All are texts as they were typed; distance and consumption, too, are kept as texts.
struct FuelRow {
    QString date;
    QString previous; ///< reading of the odometer at the fill-up before
    QString current;  ///< reading at this one
    QString driven;
    QString used;    ///< gallons or litres
    QString economy; ///< miles per gallon or kilometres per litre
    QString cost;

    bool isEmpty() const { return *this == FuelRow(); }
    bool operator==(const FuelRow &) const = default;
};

/// The columns of each in the order of file and grid.
inline constexpr std::array historyColumns{&HistoryRow::odometer, &HistoryRow::date, &HistoryRow::description,
                                           &HistoryRow::cost};
inline constexpr std::array fuelColumns{&FuelRow::date,   &FuelRow::previous, &FuelRow::current,
                                        &FuelRow::driven, &FuelRow::used,     &FuelRow::economy,
                                        &FuelRow::cost};

using History = QList<HistoryRow>;
using FuelLog = QList<FuelRow>;

/// The most fill-ups that a car's fuel tracker takes.
inline constexpr qsizetype mostFuelRows = 3000;
