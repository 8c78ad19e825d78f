// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressviewer.h"

#include <QObject>

class ActivityBar;
class Commands;
class EntryList;
class FunctionWindow;
class LabelPanel;
class QAction;
class QMenu;
class WorkViews;
struct Program;

/// Labels and envelopes for names of the address book: at first for the selected one.
class EntryLabels final : public QObject
{
    Q_OBJECT
public:
    EntryLabels(Program &program, ActivityBar &activity, const EntryList &list, WorkViews *views,
                FunctionWindow *window);

    void addCommand(Commands &commands, QMenu *menu);
    void addTool(Commands &commands);

private:
    void show();

    const EntryList &m_list;
    WorkViews *m_views;
    AddressViewer m_names;
    LabelPanel *m_panel;
    FunctionWindow *m_window;
    QAction *m_command = nullptr;
};
