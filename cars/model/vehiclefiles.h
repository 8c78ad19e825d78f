// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/histories.h"
#include "cars/model/vehiclesheet.h"
#include "storage/datafolder.h"

#include <QByteArray>

#include <array>
#include <optional>

/// The four files of a car.
enum class CarPart { Sheet, Maintenance, Repairs, Fuel };

inline constexpr std::array carParts{CarPart::Sheet, CarPart::Maintenance, CarPart::Repairs, CarPart::Fuel};

/// The files of the cars, "ACar1.Fil" (information sheet and schedule), "MCar1.Fil" (maintenance),
/// "RCar1.Fil" (repairs) and "GCar1.Fil" (fuel), with the number of the slot: texts in quotes, one a line,
/// rewritten whole at each save.
class VehicleFiles
{
public:
    enum class State {
        Missing,
        Empty,     ///< nothing, or the one blank that an emptied file holds
        Whole,     ///< or a history of any length
        Cut,       ///< it ends early: the rest is blank
        Foreign,   ///< no information sheet of this kind; never written
        OutOfReach ///< there, but it cannot be read; never written
    };

    /// What a file holds.
    template <typename Value>
    struct Found {
        Value value;
        State state = State::Missing;

        bool mayBeWritten() const { return state != State::Foreign && state != State::OutOfReach; }
    };

    explicit VehicleFiles(const DataFolder &folder)
        : m_folder(folder)
    {}

    static QString fileName(CarPart part, int slot);

    /// What the file `name` holds, an emptied one where it is missing; nothing where it is out of reach.
    static std::optional<QByteArray> bytes(const DataFolder &folder, const QString &name);

    Found<VehicleSheet> readSheet(int slot) const;
    /// Of `Maintenance` or `Repairs`.
    Found<History> readHistory(CarPart part, int slot) const;
    Found<FuelLog> readFuel(int slot) const;

    /// What the bytes of such a file say. Of a row that ends early there is what it has.
    static Found<VehicleSheet> decodeSheet(QByteArrayView bytes);
    static Found<History> decodeHistory(QByteArrayView bytes);
    static Found<FuelLog> decodeFuel(QByteArrayView bytes);

    /// The bytes of such a file. A history without a row is an emptied file.
    static QByteArray encode(const VehicleSheet &sheet);
    static QByteArray encode(const History &history);
    static QByteArray encode(const FuelLog &fuel);
    /// An emptied file: a single blank in quotes.
    static QByteArray emptied();

private:
    const DataFolder &m_folder;
};
