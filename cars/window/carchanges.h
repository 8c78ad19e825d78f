// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carfiles.h"
#include "cars/window/cardesk.h"

#include <QObject>

#include <functional>

class QAction;
class QMenu;
class TrashPanel;
class UndoStack;

/// What is done to whole cars: deleted, brought back, counted in the other unit. Each is written at once and
/// can be taken back.
class CarChanges final : public QObject
{
    Q_OBJECT
public:
    /// What it works with beside the car.
    struct Hands {
        UndoStack &undo;
        /// Reads the list anew and opens the car of a slot; another one where there is none.
        std::function<void(int slot)> openList;
        std::function<bool()> mayReplace; ///< asks where something is not saved
        std::function<bool()> hasCars;
    };

    CarChanges(const CarDesk &desk, Hands hands, QObject *parent);

    /// "Bring Back Deleted".
    void addEditCommands(QMenu *edit);
    /// "Miles" and "Kilometers".
    void addUnitCommands(QMenu *options);
    QAction *addDelete(QMenu *options);

    /// Says what was done, and offers to take it back.
    void add(const QString &title, const CarChange &change, int slot);

signals:
    void said(const QString &line);

private:
    void remove();
    void openTrash();
    void bringBack(const Trash::Item &item);
    void changeUnit(DistanceUnit unit);
    void markUnit();

    CarDesk m_desk;
    Hands m_hands;
    TrashPanel *m_trash = nullptr;
    QAction *m_miles = nullptr;
    QAction *m_kilometers = nullptr;
};
