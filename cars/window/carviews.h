// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/cardesk.h"
#include "cars/window/carprint.h"

#include <QObject>

#include <array>
#include <vector>

class CarView;
class LogView;
class QAction;
class QMenu;
struct CarPlace;

/// The views of the open car in the order of the View menu: due, information, maintenance, repairs, fuel. The
/// first one is where the others lead back to.
class CarViews final : public QObject
{
    Q_OBJECT
public:
    static constexpr std::size_t count = 5;
    enum Place : std::size_t { Due, Information, Maintenance, Repairs, Fuel };

    CarViews(const CarDesk &desk, QObject *parent);

    const std::array<CarView *, count> &all() const { return m_views; }
    CarView *view(Place place) const { return m_views[place]; }
    /// Those that show a history or the fuel tracker.
    std::vector<LogView *> histories() const;
    /// The one in front; null while something else is.
    CarView *shown() const;
    /// What is printed of the one in front.
    CarPrint::Sheet sheet() const;
    /// Brings a view to the front, with the focus in it.
    void open(Place place);
    /// Brings a place of the open car to the front, in its row where it has one.
    void show(const CarPlace &place);
    /// Puts the commands that open them into `menu` and on the toolbar.
    void addCommands(QMenu *menu);
    /// What is still being typed in the view in front goes into the open car.
    void finishEdit() const;

signals:
    void said(const QString &line);

private:
    void look(Place place);

    CarDesk m_desk;
    std::array<CarView *, count> m_views{};
};
