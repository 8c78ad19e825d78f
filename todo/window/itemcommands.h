// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/window/tododesk.h"

#include <QKeySequence>
#include <QObject>

class ItemsView;
class QAction;
class QMenu;

/// What is done to things: typed, ticked, dated, removed. Each is one step of undo, and acts on all
/// rows that are chosen.
class ItemCommands final : public QObject
{
    Q_OBJECT
public:
    ItemCommands(const ToDoDesk &desk, ItemsView &view, QObject *parent);

    void addCommands(QMenu *edit);
    /// "Add", beside the line for something new.
    QAction *addCommand() const { return m_add; }
    /// What stands in the line for something new and was not entered goes into the lists.
    void takeLine();

    QAction *removeCommand() const { return m_remove; }
    QAction *tickCommand() const { return m_tick; }
    QAction *overdueCommand() const { return m_overdue; }

private:
    void addRowCommands(QMenu *edit);
    void addDateCommands(QMenu *edit);
    void connectView();
    QAction *add(QMenu *menu, const QString &name, const QString &caption, std::function<void()> run,
                 const QKeySequence &key = {});
    QString whyNone() const;

    void takeNew(const QStringList &lines);
    void takeTyped(int id, int column, const QString &text);
    void takeDate(int id, int column, const QString &text);
    void refuse(int id, int column, const QString &text, const QString &why);
    void hintAtLength(int id);
    void takeRepeat(int id, const QString &text);
    void tick();
    void tellNext(int done, const QString &title);
    void captionTick();
    void setDue(QDate due);
    void moveOverdue();
    void remove();
    void addHeading();
    void openNote();

    ToDoDesk m_desk;
    ItemsView &m_view;
    QAction *m_add = nullptr;
    QAction *m_remove = nullptr;
    QAction *m_tick = nullptr;
    QAction *m_overdue = nullptr;
};
