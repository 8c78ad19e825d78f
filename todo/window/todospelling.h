// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/spellwalk.h"
#include "todo/window/tododesk.h"

#include <QObject>

class ItemsView;
class QMenu;
class WindowWriting;

/// The spelling of the To Do list: which boxes are checked, and the walk through all its texts.
class ToDoSpelling final : public QObject
{
    Q_OBJECT
public:
    ToDoSpelling(const ToDoDesk &desk, ItemsView &view, QObject *parent);

    void addCommands(QMenu *menu);

signals:
    void said(const QString &line);

private:
    std::vector<int> rowsToRead() const;
    std::vector<WalkedText> texts() const;
    void change(const WalkedText &text);

    ToDoDesk m_desk;
    ItemsView &m_view;
    WindowWriting *m_tools;
};
