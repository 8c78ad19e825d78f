// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/vehicle.h"
#include "shell/controls/twolinedelegate.h"

#include <QAbstractListModel>
#include <QHash>
#include <QImage>
#include <QList>

/// The cars as the rows of `Combo1`, each with its slot behind it.
class CarListModel final : public QAbstractListModel
{
    Q_OBJECT
public:
    /// What a row says of its car besides the name.
    struct Sign {
        TwoLineDelegate::Sign urgency = TwoLineDelegate::NoSign;
        QString words;   ///< "oil change and 1 more"
        QString shorter; ///< "oil change +1", where there is less room

        bool operator==(const Sign &) const = default;
    };

    static constexpr int slotRole = TwoLineDelegate::keyRole;

    using QAbstractListModel::QAbstractListModel;

    void setVehicles(const QList<Vehicle> &vehicles);
    const QList<Vehicle> &vehicles() const { return m_vehicles; }
    /// -1: no car has this slot.
    int rowOf(int slot) const;
    void setSign(int slot, const Sign &sign);
    /// A null picture leaves the drawing of a car.
    void setPicture(int slot, const QImage &picture);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void tellChange(int slot);

    QList<Vehicle> m_vehicles;
    QHash<int, Sign> m_signs;
    QHash<int, QImage> m_pictures;
};
