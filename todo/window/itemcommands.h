// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/todoactions.h"
#include "todo/window/tododesk.h"

#include <QKeySequence>
#include <QObject>

class ItemsView;
class QAction;
class QMenu;

/// What is done to things: typed, ticked, dated, moved, removed. Each is one step of undo, and acts on all
/// rows that are chosen.
class ItemCommands final : public QObject
{
    Q_OBJECT
public:
    ItemCommands(const ToDoDesk &desk, ItemsView &view, QObject *parent);

    void addCommands(QMenu *edit);
    /// "Add", beside the line for something new.
    QAction *addCommand() const { return m_add; }
    QAction *removeCommand() const { return m_remove; }
    QAction *tickCommand() const { return m_tick; }

    void moveToList(const std::vector<int> &ids, int list);

signals:
    void said(const QString &line);
    /// The same of something that can be taken back.
    void done(const QString &line);
    /// Something went into another list, which is to be shown.
    void listWanted(int list);

private:
    void addRowCommands(QMenu *edit);
    void addDateCommands(QMenu *edit);
    void addOrderCommands(QMenu *edit);
    void connectView();
    QAction *add(QMenu *menu, const QString &name, const QString &caption, std::function<void()> run,
                 const QKeySequence &key = {});
    QString whyNone() const;
    QString whyNoOrder() const;

    bool make(const ToDoActions::Result &result);
    void takeNew(const QStringList &lines);
    void takeTyped(int id, int column, const QString &text);
    void takeDate(int id, int column, const QString &text);
    void takeRepeat(int id, const QString &text);
    void tick();
    void captionTick();
    void setDue(QDate due);
    void moveOverdue();
    void remove();
    void step(bool isStep);
    void moveBy(int direction);
    void moveBeyond(int direction, const std::vector<int> &ids);
    int placeAbove(int row) const;
    int placeBelow(int row) const;
    void addHeading();
    void openNote();
    void fillListMenu(QMenu &menu);

    ToDoDesk m_desk;
    ItemsView &m_view;
    QAction *m_add = nullptr;
    QAction *m_remove = nullptr;
    QAction *m_tick = nullptr;
};
