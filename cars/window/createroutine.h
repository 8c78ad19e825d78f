// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/carviews.h"

#include <QObject>

#include <functional>
#include <vector>

class CarChanges;
class QAction;
class QMenu;
class QPushButton;
struct CarRecord;

/// The way through the input files of a new car: its sheet, with which the car is made, then its schedule,
/// its histories and its fuel, in any of which one may leave off.
class CreateRoutine final : public QObject
{
    Q_OBJECT
public:
    struct Hands {
        CarViews &views;
        CarChanges &changes;
        /// Reads the list anew and opens the car of a slot; 0: the first one.
        std::function<void(int slot)> openList;
        std::function<bool()> mayReplace; ///< asks where something is not saved
        std::function<bool()> save;
    };

    CreateRoutine(const CarDesk &desk, Hands hands, QObject *parent);

    /// "Create New File", for a menu and buttons.
    QAction *addCommand(QMenu *menu);
    /// Puts the buttons of the routine into the feet of the views.
    void addButtons();

    /// Whether one is on the way.
    bool isOn() const { return m_isOn; }
    /// Makes the car of what was typed. False: refused, or the user would rather go on typing.
    [[nodiscard]] bool create();
    /// Another car is opened: the routine is over.
    void end();

signals:
    /// The routine has begun or ended, or the car was made.
    void changed();
    void said(const QString &line);

private:
    void start();
    void next();
    void saveAndExit();
    void cancel();
    void setOn(bool isOn);
    void showRefused(const CarRecord &record);

    CarDesk m_desk;
    Hands m_hands;
    std::vector<QPushButton *> m_buttons;
    QAction *m_next = nullptr;
    QAction *m_saveAndExit = nullptr;
    QAction *m_cancel = nullptr;
    bool m_isOn = false;
    int m_slotBefore = 0;
};
