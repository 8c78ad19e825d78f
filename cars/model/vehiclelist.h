// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/vehicle.h"
#include "storage/datafolder.h"
#include "storage/recordfile.h"

#include <QByteArray>
#include <QList>

/// The list of cars, `CarMnt1.Fil`: a record of 150 bytes for each slot, with a length of two bytes and the
/// name, or "EMPTY" where the slot is free. It only grows.
class VehicleList
{
public:
    static constexpr qsizetype recordLength = 150;
    static constexpr qsizetype nameLength = 100;

    explicit VehicleList(const DataFolder &folder)
        : m_folder(folder)
    {}

    static QString fileName();

    /// The cars in the order of their slots.
    QList<Vehicle> vehicles() const;

    /// The name in `slot`; empty where it is free.
    QString name(int slot) const;

    /// The first free slot behind `after`, or the one past the last; 0 when the list is there and cannot be
    /// read.
    int freeSlot(int after = 0) const;

    /// Whether the list would take a record of this name for a free one.
    static bool isFreeName(QStringView name);

    /// The name in the bytes of a record; empty for a free one. The length in front is never trusted.
    static QString decode(QByteArrayView record);
    /// The bytes that a record begins with; an empty name frees it.
    static QByteArray encode(const QString &name);

    RecordFile file() const;

private:
    const DataFolder &m_folder;
};
