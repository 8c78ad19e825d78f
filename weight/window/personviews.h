// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/window/weightdesk.h"

#include <QObject>

#include <array>

class GraphView;
class PersonView;
class PhotosView;
class PlanView;
class QAction;
class QMenu;
class WeighInsView;

/// The views of the open person in the order of the View menu. The first one is where the others lead back
/// to.
class PersonViews final : public QObject
{
    Q_OBJECT
public:
    static constexpr std::size_t count = 4;
    enum Place : std::size_t { WeighIns, Graph, Plan, Photos };

    PersonViews(const WeightDesk &desk, QObject *parent);

    const std::array<PersonView *, count> &all() const { return m_views; }
    WeighInsView &weighIns() const;
    GraphView &graph() const;
    PlanView &plan() const;
    PhotosView &photos() const;
    /// The one in front; null while something else is.
    PersonView *shown() const;
    /// Brings a view to the front, with the focus in it.
    void open(Place place);
    /// Puts the commands that open them into `menu` and on the toolbar.
    void addCommands(QMenu *menu);
    /// The command that opens a view, for buttons.
    QAction *command(Place place) const { return m_commands[place]; }
    /// What is still being typed in the view in front goes into the sheet.
    void finishEdit() const;

signals:
    void said(const QString &line);
    /// The same of something that can be taken back.
    void done(const QString &line);

private:
    void look(Place place);

    WeightDesk m_desk;
    std::array<PersonView *, count> m_views{};
    std::array<QAction *, count> m_commands{};
};
