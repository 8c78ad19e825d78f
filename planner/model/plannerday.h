// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/recordlayout.h"

#include <QString>

#include <array>

/// The appointments of one date: fourteen rows of a time text and a text. The day record of a year file.
struct PlannerDay {
    static constexpr std::size_t rowCount = 14;
    static constexpr qsizetype timeWidth = 10; ///< bytes
    static constexpr qsizetype textWidth = 50; ///< bytes
    static constexpr QLatin1StringView savedMark{"Full"};

    std::array<QString, rowCount> times;
    std::array<QString, rowCount> texts;
    QString mark; ///< "Full" when the day was saved; anything else means no entries

    bool isRowEmpty(std::size_t row) const;
    /// Whether no row holds anything but blanks.
    bool isEmpty() const;
    /// Rows that hold anything but blanks.
    int entryCount() const;

    bool operator==(const PlannerDay &) const = default;
};

/// The first 850 of the 900 bytes of a day record; the last 50 belong to nobody and survive a save.
inline constexpr auto plannerDayLayout = recordLayout<PlannerDay>(
    TextArrayField<PlannerDay, PlannerDay::rowCount>{&PlannerDay::times, PlannerDay::timeWidth},
    TextArrayField<PlannerDay, PlannerDay::rowCount>{&PlannerDay::texts, PlannerDay::textWidth},
    TextField<PlannerDay>{&PlannerDay::mark, 10});
static_assert(plannerDayLayout.size() == 850);
