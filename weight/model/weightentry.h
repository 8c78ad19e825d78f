// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

#include <QDate>
#include <QString>

#include <optional>

/// What becomes of a text that is typed or picked in the weight tracker, and what is said about it.
struct WeightEntry {
    /// Whether a date after today is refused.
    enum class DateChecker { Off, On };

    QString text; ///< as it is shown and stored; what stood there before where it is refused
    std::optional<Message> refusal; ///< the box under "Entry Error"

    /// The date of a weigh-in, "01/05/2026". Empty is taken.
    static WeightEntry tableDate(const QString &typed, const QString &before, DateChecker checker,
                                 QDate today);
    /// A date of the sheet, "January 05, 2026". Empty is taken.
    static WeightEntry sheetDate(const QString &typed, const QString &before, DateChecker checker,
                                 QDate today);
    /// A weight, "180.". Empty is taken.
    static WeightEntry weight(const QString &typed, const QString &before);

    bool operator==(const WeightEntry &) const = default;
};
