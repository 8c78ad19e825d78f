// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>

/// What a set has on a date: "Christmas Day", or "Christmas Day (observed)" on the day off for it.
struct HolidayDay {
    QDate date;
    QString text;

    bool operator==(const HolidayDay &) const = default;
};

/// A line of a set.
struct Holiday {
    QString rule; ///< as `DateRule` reads it, or what stands there and is no rule
    QString text;
    QByteArray more{};   ///< further columns, as the file has them
    bool isKept = false; ///< a line of another kind, which `more` has whole
    int line = 0;        ///< where the file has it, from 1; 0: in none. No part of what it is

    bool isReadable() const;
    bool operator==(const Holiday &other) const
    {
        return rule == other.rule && text == other.text && more == other.more && isKept == other.isKept;
    }
};

/// The holidays of a country, a church or a household: "Germany".
struct HolidaySet {
    QString name;
    QList<Holiday> holidays{};

    /// Its days from `from` to `to`, by date, and those of one date as they stand in it. What cannot be read
    /// is left out.
    QList<HolidayDay> days(QDate from, QDate to) const;

    bool operator==(const HolidaySet &) const = default;
};
