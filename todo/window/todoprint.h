// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/window/tododesk.h"

#include <QObject>

class ItemsView;
class QMenu;
class ToDoPrintPanel;

/// What leaves the window: onto paper, to the clipboard, into a file for spreadsheets.
class ToDoPrint final : public QObject
{
    Q_OBJECT
public:
    ToDoPrint(const ToDoDesk &desk, ItemsView &view, QObject *parent);

    /// "Copy" and "Print".
    void addCommands(QMenu *options);
    void addExportCommand(QMenu *utilities);

signals:
    void said(const QString &line);

private:
    void openPanel();
    void print();
    void copy();
    void exportList();

    ToDoDesk m_desk;
    ItemsView &m_view;
    ToDoPrintPanel *m_panel = nullptr;
};
