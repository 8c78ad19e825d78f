// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/window/weightdesk.h"

#include <QObject>

class PersonViews;
class QAction;
class QMenu;
class QWidget;
class WeightPrintPanel;

/// Leads to the print options of the open person, and to the printout behind them.
class PersonPrint final : public QObject
{
    Q_OBJECT
public:
    PersonPrint(const WeightDesk &desk, const PersonViews &views, QObject *parent);

    /// Puts the command into `menu` and on the toolbar.
    void addCommand(QMenu *menu);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    void open();

    WeightDesk m_desk;
    const PersonViews &m_views;
    WeightPrintPanel *m_panel = nullptr; ///< made when it is first opened
    QWidget *m_from = nullptr;           ///< what it stands over
};
