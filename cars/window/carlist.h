// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/vehicle.h"
#include "cars/window/carlistmodel.h"

#include <QHash>
#include <QWidget>

#include <functional>

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
    /// What stands before another car takes the place of the open one.
    struct Guard {
        std::function<bool()> isModified;
        std::function<bool()> mayReplace; ///< asks the user when it is modified
    };

    CarList(const DataFolder &folder, Guard guard, QWidget *parent = nullptr);

    const QList<Vehicle> &vehicles() const { return m_model->vehicles(); }
    /// None of them is shown until `show` says which.
    void setVehicles(const QList<Vehicle> &vehicles);
    /// What the row of a car says and shows; `picture` is a path as the sheet has it.
    void setSign(int slot, const CarListModel::Sign &sign) { m_model->setSign(slot, sign); }
    void setPicture(int slot, const QString &picture);

    /// The slot of the car that is open; 0 without one.
    int shownSlot() const { return m_shown; }
    /// Marks the car of `slot` as the open one; 0: none. Asks nothing.
    void show(int slot);
    /// Puts a button under the list.
    void addButton(QPushButton *button);

signals:
    /// The car of `slot` is to be opened; what was typed may go.
    void chosen(int slot);

private:
    int selectedSlot() const;
    void select(int slot);
    void selectionMoved();
    void takeSelected();

    Guard m_guard;
    CarListModel *m_model;
    QListView *m_view;
    QLabel *m_count;
    QVBoxLayout *m_rows;
    PictureLoader *m_pictures;
    QHash<int, QString> m_picturesShown;
    int m_shown = 0;
    bool m_isFollowing = true; ///< a change of the selection opens its car
    bool m_isAsking = false;   ///< a question about unsaved changes is about to be asked
};
