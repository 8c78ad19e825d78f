// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carchange.h"
#include "cars/model/carrecord.h"
#include "cars/model/vehiclefiles.h"
#include "cars/model/vehiclelist.h"
#include "shell/core/message.h"
#include "shell/core/programstate.h"

#include <QDateTime>
#include <QStringList>

#include <optional>

/// The household's cars: the list and four files for each, which always move together. Every action is on the
/// disk as a whole or not at all, and can be taken back. Dates of numbers are read and written in the order
/// that those of the car have; here they have the one of `style`.
class CarFiles
{
public:
    /// A car as it was read.
    struct Found {
        CarRecord record;
        std::array<VehicleFiles::State, carParts.size()> states{}; ///< in the order of `CarPart`

        VehicleFiles::State state(CarPart part) const { return states[std::size_t(part)]; }
        /// Whether the file of `part` is neither out of reach nor of another kind.
        bool mayBeWritten(CarPart part) const;
    };

    /// How an action went that gives a car a slot.
    struct [[nodiscard]] Placed {
        Vehicle vehicle;  ///< without a slot where none could be found
        CarChange change; ///< to take it back
        bool isDone = false;
    };

    CarFiles(const DataFolder &folder, DateStyle style)
        : m_folder(folder)
        , m_style(style)
    {}

    const DataFolder &folder() const { return m_folder; }

    /// The cars in the order of their slots.
    QList<Vehicle> vehicles() const;
    /// All cars, for what is said of them together.
    QList<CarRecord> all() const;
    Found read(int slot) const;

    /// What distances are counted in, as the first car's file says; miles without one.
    DistanceUnit unit() const;
    /// The same from now on for every car, in one go. Nothing where the disk refuses.
    [[nodiscard]] std::optional<CarChange> changeUnit(DistanceUnit unit);

    /// Why no car of that name can be made or renamed to; nothing where it can.
    static std::optional<Message> whyNotNamed(const QString &name);
    /// Why a new car cannot be made of `record`: its name, make or model, or the reading is missing.
    static std::optional<Message> whyNotCreated(const CarRecord &record);

    /// Makes a car of `record` in the first free slot, whatever slot it has, with the histories in it. What
    /// the files of the free slot still held goes into the trash.
    Placed create(const CarRecord &record, const QDateTime &now);
    /// Gives a car another name. Nothing where the disk refuses.
    [[nodiscard]] std::optional<CarChange> rename(int slot, const QString &name);

    /// Writes the files in which `after` differs from `before`, all or none of them. Nothing, with a line in
    /// the log, where the disk refuses, a file must not be written or the car was deleted elsewhere.
    [[nodiscard]] std::optional<CarChange> save(const CarRecord &before, const CarRecord &after);

    /// Empties the files of `slot` and frees it; the car goes into the trash. Nothing where the disk refuses.
    [[nodiscard]] std::optional<CarChange> remove(int slot, const QDateTime &now);
    /// The cars that were deleted in the 30 days before `now`, the newest first.
    std::vector<Trash::Item> deletedCars(const QDateTime &now) const;
    /// Brings a deleted car back, byte for byte but for the unit: into its own slot where that is free, else
    /// into the first that is.
    Placed bringBack(const Trash::Item &item);

    /// Adds to `change` that a car, as the trash would have it, stands in a free slot: byte for byte but for
    /// the unit. What the files there still held goes into the trash.
    void placeIn(CarChange &change, int slot, const Trash::Item &item) const;
    /// Adds that the car of that slot becomes such a one, but for files that it does not have.
    void replaceBy(CarChange &change, const Trash::Item &item) const;

    /// The files of all cars that are there.
    static QStringList files(const DataFolder &folder);
    /// The pictures of the cars that are there, as full paths.
    static QStringList pictures(const DataFolder &folder);

private:
    void replace(CarChange &change, CarPart part, int slot, const QByteArray &bytes) const;
    /// The same in a slot that a car gets: a file that would be empty is not made.
    void begin(CarChange &change, CarPart part, int slot, const QByteArray &bytes) const;
    /// Adds that what the files of a free slot still hold goes into the trash.
    void clear(CarChange &change, int slot, const QDateTime &deleted) const;
    /// What such a car has in the file of `part`; nothing where it has none.
    std::optional<QByteArray> bytesOf(const Trash::Item &item, CarPart part) const;
    /// The bytes of an information file, with distances counted as in those of the other cars.
    QByteArray inUnitOfAll(const QByteArray &bytes) const;
    Trash::Item trashItem(const Vehicle &vehicle, const QDateTime &now) const;
    [[nodiscard]] std::optional<CarChange> done(CarChange change);
    Placed placed(const Vehicle &vehicle, CarChange change);

    const DataFolder &m_folder;
    DateStyle m_style;
};
