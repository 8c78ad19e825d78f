// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

#include <array>
#include <optional>

/// How often a thing to do comes back (`RepeatWords` reads and says it): every 3 days, every second week on
/// Monday and Thursday, on the last day of the month, every year on 15 March.
struct Repeat {
    enum Unit { Day, Week, Month, Year };

    static constexpr int longestInterval = 3652;

    Unit unit = Day;
    int interval = 1;
    std::array<bool, 7> weekdays{}; ///< Monday to Sunday, of weeks
    int day = 1;                    ///< of months and years; the last one in shorter months
    int month = 1;                  ///< of years
    bool isAfter = false;           ///< counts from the day when the thing was done

    /// "day 3 after", "week 2 mon,thu", "month 1 31", "year 1 03-15"; nothing for anything else.
    static std::optional<Repeat> ofFile(QStringView text);

    QString toFile() const;

    /// When a thing that was due on `due` (invalid: on no day) and done on `actual` comes back.
    QDate next(QDate due, QDate actual, QDate today) const;
    /// How many of its days went by between `due` and `today`, the last one included.
    int missed(QDate due, QDate today) const;

    bool operator==(const Repeat &) const = default;
};
