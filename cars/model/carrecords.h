// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carfiles.h"
#include "shell/core/functionrecords.h"

/// The cars of the household, to be compared with another version of them and brought back from there. A car
/// is known by its name, a further one of that name by its slot too.
class CarRecords final : public FunctionRecords
{
public:
    /// `now`: when what lies in a slot that is free goes into the trash.
    CarRecords(const DataFolder &folder, DateStyle style, const QDateTime &now);

    QString counted(int count) const override;
    std::vector<FunctionRecord> all() const override;
    QStringList lines(const QString &key) const override;
    /// The files of a car as they were, byte for byte but for the unit. Where its slot still has a car of
    /// that name, that is replaced, but for a file that the other version does not have; else it takes the
    /// first free slot.
    RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) override;

private:
    struct Found {
        QString key;
        Vehicle vehicle;
    };

    QList<Found> found() const;
    QByteArray content(const Vehicle &vehicle) const;
    /// The car as the trash would have it; nothing where a file of it cannot be read.
    std::optional<Trash::Item> asDeleted(const Vehicle &vehicle) const;

    DataFolder m_folder;
    DateStyle m_style;
    QDateTime m_now;
};
