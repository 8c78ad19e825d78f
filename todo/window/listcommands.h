// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/trash.h"
#include "todo/model/listactions.h"
#include "todo/model/shown.h"
#include "todo/window/tododesk.h"

#include <QKeySequence>
#include <QObject>

class ItemsView;
class ListsPane;
class NewListPanel;
class QAction;
class QMenu;
class TrashPanel;

/// What is done to whole lists: made, also from a template, renamed, ordered, kept as a template, deleted.
class ListCommands final : public QObject
{
    Q_OBJECT
public:
    ListCommands(const ToDoDesk &desk, ListsPane &pane, ItemsView &view, QObject *parent);

    void addCommands(QMenu *menu);
    /// "New List", for a button.
    QAction *createCommand() const { return m_create; }

signals:
    void said(const QString &line);
    /// The same of something that can be taken back.
    void done(const QString &line);
    void wanted(const Shown &shown);

private:
    void addOrderCommands(QMenu *menu);
    QAction *add(QMenu *menu, const QString &name, const QString &caption, std::function<void()> run,
                 const QKeySequence &key = {});
    QString whyNone() const;
    const ToDoList *list() const;
    bool make(const ToDoActions::Result &result);
    void makePanel();
    void openPanel();
    void startNew(bool isFromTemplate);
    void startTemplate();
    void create();
    void rename(int id, const QString &name);
    void moveBy(int direction);
    void moveBefore(int id, int before);
    void remove();
    void openTrash();
    void bringBack(const Trash::Item &item);

    ToDoDesk m_desk;
    ListsPane &m_pane;
    ItemsView &m_view;
    NewListPanel *m_panel = nullptr;
    TrashPanel *m_trash = nullptr;
    QAction *m_create = nullptr;
};
