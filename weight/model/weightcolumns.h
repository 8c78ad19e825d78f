// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/model/weightsheet.h"

/// What is computed from a person's weigh-ins in the order of their table: the columns that no file holds,
/// and what stands beside the table.
namespace WeightColumns {

/// "+0.4", "0", "-1.3": the change from the last entry above that has a weight; "N/A" where there is none
/// above, empty for a row without a weight, unless it is the first.
QString change(const WeightTable &weighIns, qsizetype row);

/// The same from the beginning weight; empty without one of the two.
QString difference(const WeightTable &weighIns, qsizetype row, std::optional<float> beginning);

/// Where the weight went.
enum class Way {
    Unknown, ///< there is nothing to compare
    Up,
    Level,
    Down
};

/// From the beginning weight to the current weight, which is that of the last row that has one.
Way sinceBeginning(const WeightSheet &sheet);
/// From the entry before it to the current weight.
Way sinceLastEntry(const WeightSheet &sheet);

/// The last row that has a weight; -1: none has.
qsizetype currentRow(const WeightTable &weighIns);
/// The current weight.
std::optional<float> current(const WeightTable &weighIns);

/// Whether the current weight is at the goal, or beyond it seen from the beginning weight; without that, from
/// the first weigh-in.
bool isGoalReached(const WeightSheet &sheet);

} // namespace WeightColumns
