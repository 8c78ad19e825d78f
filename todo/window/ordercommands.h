// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/window/tododesk.h"

#include <QObject>

#include <vector>

class ItemsView;
class ToDoSheet;
class QMenu;

/// What gives things another place: up and down, as a step of the item above, into another list.
class OrderCommands final : public QObject
{
    Q_OBJECT
public:
    OrderCommands(const ToDoDesk &desk, ItemsView &view, QObject *parent);

    void addCommands(QMenu *edit);
    void moveToList(const std::vector<int> &ids, int list);

signals:
    /// Something went into another list, which is to be shown.
    void listWanted(int list);

private:
    QString whyNoOrder() const;
    void step(bool isStep);
    void moveBy(int direction);
    void moveBeyond(int direction, const std::vector<int> &ids);
    int shownAbove(int row, const std::vector<int> &ids) const;
    int placeBehind(const ToDoSheet &sheet, int above, const std::vector<int> &ids, int before) const;
    int placeAbove(int row) const;
    int placeBelow(int row) const;
    void fillListMenu(QMenu &menu);

    ToDoDesk m_desk;
    ItemsView &m_view;
};
