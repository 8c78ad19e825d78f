// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/model/weighttable.h"

#include <QString>

#include <array>
#include <cstddef>

/// All that is known of one person's weight: the texts as they were typed, and the weigh-ins.
struct WeightSheet {
    /// The boxes `Text1` by their index. The name is that of the file; the others stand in it in this order.
    enum Field : std::size_t {
        Name,
        BeginningDate, ///< this and the dates of the photos: "January 05, 2026"
        BeginningWeight,
        GoalWeight,
        DaysPerWeek,
        TimePerPeriod,
        ExerciseTypes,
        BeginningPhotoDate,
        CurrentPhotoDate
    };
    static constexpr std::size_t fieldCount = CurrentPhotoDate + 1;
    static constexpr qsizetype longestComments = 1000;

    std::array<QString, fieldCount> fields;
    QString comments;         ///< as the file has them: lines end with CR and LF, each a character of its own
    QString beginningPicture; ///< paths as they are stored
    QString currentPicture;
    WeightTable weighIns;

    const QString &field(Field field) const { return fields[field]; }
    QString &field(Field field) { return fields[field]; }

    /// The comments for a box, with a line feed after each line; and those of a box for the file. What nobody
    /// touched stays as the file has it.
    QString shownComments() const;
    void setShownComments(const QString &shown);

    /// Single precision; nothing where there is none.
    std::optional<float> beginningWeight() const;
    std::optional<float> goalWeight() const;

    bool operator==(const WeightSheet &) const = default;
};
