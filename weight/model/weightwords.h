// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "weight/model/weightfigures.h"
#include "weight/model/weightsheet.h"

#include <QStringList>

#include <array>

/// The captions of sheet and table, whose wording is fixed, and what the figures say in words.
namespace WeightWords {

/// Of the boxes `Text1`, in their order.
inline constexpr std::array<QStringView, WeightSheet::fieldCount> captions{
    u"Select Individual:",
    u"Beginning Date:",
    u"Beginning Weight:",
    u"Goal Weight:",
    u"Average Number of Days Per Week:",
    u"Average Time Per Exercise Period:",
    u"Types of Exercise:",
    u"Beginning photo taken:",
    u"Current photo taken:"};
inline constexpr QStringView comments = u"Additional Comments:";

/// Of the table `Grid4`.
QStringList headings();

/// "192.2", "180".
QString weight(double weight);
/// "-0.9 a week".
QString aWeek(double change);

/// What is missing to the goal: "12.2 to lose", "3 to gain", "reached".
QString toGoal(const WeightFigures &figures);

/// The day of the goal: "Sep 4, 2026"; "reached", or "-" where none is expected.
QString goalDay(const GoalForecast &forecast, DateStyle style);
/// "Aug 29 to Sep 12, 2026"; "Aug 29, 2026 at the earliest" where there is no latest day; where no day is
/// expected, why: "the weight leads away from it".
QString goalRange(const GoalForecast &forecast, DateStyle style);
/// Both in a sentence, for a page.
QString goalSentence(const GoalForecast &forecast, DateStyle style);

} // namespace WeightWords
