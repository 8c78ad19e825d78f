// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>

#include <optional>

/// What the odometer read on a date.
struct OdometerReading {
    QDate date;
    double reading = 0;

    bool operator==(const OdometerReading &) const = default;
};

/// What the readings of a car's odometer tell of how it is driven. A single reading that does not fit between
/// its neighbours does not count, nor does one of a day to come; one below half of the one before it is that
/// of a new odometer, which began at 0.
class DrivingLog
{
public:
    /// The rate of driving is that of so many days before the newest dated reading.
    static constexpr int recentDays = 180;

    /// `readings` in any order. `current` is what the odometer read when it was last looked at: nobody knows
    /// on which day.
    DrivingLog(QList<OdometerReading> readings, std::optional<double> current, QDate today);

    /// The highest that the odometer in use is known to have read; nothing without any reading.
    std::optional<double> odometer() const { return m_odometer; }
    /// The day on which it did, estimated where it is not known.
    QDate readOn() const { return m_readOn; }

    /// How far the car was driven a day of late; 0 where it stands still, nothing where too little is known.
    std::optional<double> perDay() const { return m_perDay; }
    /// The readings that `perDay` is taken from, oldest first.
    const QList<OdometerReading> &recent() const { return m_recent; }

    /// How far the car was driven since its odometer read `reading` on `date`, which may be invalid.
    double drivenSince(double reading, QDate date) const;
    /// The day on which `distance` more than the present reading are or were driven; invalid where the rate
    /// does not tell.
    QDate dateAfter(double distance) const;

    /// How far the car was driven from `from` to `to`, both included, as far as the readings reach; between
    /// two readings it was driven evenly. Nothing where they do not reach there.
    std::optional<double> drivenBetween(QDate from, QDate to) const;

    bool hasNewOdometer() const { return m_odometers.size() > 1; }
    /// The dated readings that count, oldest first, odometer by odometer.
    QList<OdometerReading> readings() const;

private:
    void leaveOutSingles(std::optional<double> current);
    void splitByOdometer(std::optional<double> current);
    void findRate(std::optional<double> current, QDate today);
    void findReadOn(std::optional<double> current, QDate today);
    qsizetype odometerOf(double reading, QDate date) const;
    void addUp();
    double totalOn(QDate date) const;

    QList<OdometerReading> m_all;
    QList<QList<OdometerReading>> m_odometers; ///< the readings of each; the one in use is the last
    QList<OdometerReading> m_totals;           ///< what one odometer would have read, never falling
    QList<OdometerReading> m_recent;
    std::optional<double> m_odometer;
    std::optional<double> m_perDay;
    QDate m_readOn;
};
