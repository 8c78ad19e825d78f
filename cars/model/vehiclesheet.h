// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <cstddef>

/// What distances are counted in: one choice for all cars.
enum class DistanceUnit { Miles, Kilometers };

/// Something that a car needs again and again. All are texts as they were typed.
struct ScheduledAction {
    QString name;
    QString distance; ///< between two of them
    QString months;   ///< between two of them
    QString odometer; ///< of the last one
    QString date;     ///< of the last one
    QString cost;     ///< of the last one

    /// Whether nothing stands in it. An action without a name may have the rest.
    bool isEmpty() const { return *this == ScheduledAction(); }
    bool operator==(const ScheduledAction &) const = default;
};

/// The information sheet of a car, with its maintenance schedule. All are texts as they were typed.
struct VehicleSheet {
    /// The texts of the sheet, in the order in which the file has them.
    enum Field : std::size_t {
        Vin,
        License,
        RegistrationMonth,
        PurchaseDate,
        Price,
        From,
        Picture,
        Insurer,
        InsurerTelephone,
        Policy,
        InsuranceExpiration,
        OilFilter,
        AirFilter,
        PvcValve,
        PlugType,
        OilWeight,
        OilChange,
        CoolantChange,
        Other,
        Make,
        Model,
        Odometer
    };
    static constexpr std::size_t fieldCount = Odometer + 1;
    static constexpr std::size_t actionCount = 50;

    std::array<QString, fieldCount> fields;
    std::array<ScheduledAction, actionCount> actions;
    DistanceUnit unit = DistanceUnit::Miles; ///< the same for all cars
    QString ownValue;                        ///< what a file holds behind the unit; nothing is known of it
    QStringList surplus;                     ///< values behind all of that, which stay there

    const QString &field(Field field) const { return fields[field]; }
    QString &field(Field field) { return fields[field]; }

    /// Gives the first seven actions the names that a new car begins with. What else stands there, stays.
    void nameFirstActions();

    bool operator==(const VehicleSheet &) const = default;
};
