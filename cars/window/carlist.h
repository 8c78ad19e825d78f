// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/vehicle.h"
#include "cars/window/carlistmodel.h"
#include "shell/controls/guardedchoice.h"

#include <QHash>
#include <QWidget>

class PictureLoader;
class QLabel;
class QListView;
class QPushButton;
class QVBoxLayout;
class DataFolder;

/// The cars of the household beside the one that is open: small picture, name, what each needs. Lets another
/// one take the place of the open one only when that may be.
class CarList final : public QWidget
{
    Q_OBJECT
public:
    CarList(const DataFolder &folder, GuardedChoice::Guard guard, QWidget *parent = nullptr);

    const QList<Vehicle> &vehicles() const { return m_model->vehicles(); }
    /// None of them is shown until `show` says which.
    void setVehicles(const QList<Vehicle> &vehicles);
    /// What the row of a car says and shows; `picture` is a path as the sheet has it.
    void setSign(int slot, const CarListModel::Sign &sign) { m_model->setSign(slot, sign); }
    void setPicture(int slot, const QString &picture);

    /// The slot of the car that is open; 0 without one.
    int shownSlot() const { return m_choice->shown().toInt(); }
    /// Marks the car of `slot` as the open one; 0: none. Asks nothing.
    void show(int slot);
    /// Puts a button under the list.
    void addButton(QPushButton *button);

signals:
    /// The car of `slot` is to be opened; what was typed may go.
    void chosen(int slot);

private:
    CarListModel *m_model;
    QListView *m_view;
    GuardedChoice *m_choice = nullptr;
    QLabel *m_count;
    QVBoxLayout *m_rows;
    PictureLoader *m_pictures;
    QHash<int, QString> m_picturesShown;
};
