// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/calendardesk.h"
#include "shell/core/page.h"

#include <QList>
#include <QObject>

#include <functional>

class ActivityBar;
class CalendarPrintPanel;
class CellTyping;
class PreviewPane;
class QMenu;

/// What comes onto paper, into a PDF, and to the clipboard.
class CalendarPrint final : public QObject
{
    Q_OBJECT
public:
    /// Where pages are shown, and how it went is said.
    struct Places {
        std::function<PreviewPane &()> preview;
        ActivityBar &activity;
    };
    CalendarPrint(const CalendarDesk &desk, CellTyping &typing, Places places, QObject *parent);

    void addCommands(QMenu *options);

private:
    void openPanel(bool isForPdf);
    void showPages();
    void savePdf();
    void copy();
    void turn(PageSetup::Orientation orientation);
    void setFont(const QFont &font);

    CalendarDesk m_desk;
    CellTyping &m_typing;
    Places m_places;
    CalendarPrintPanel *m_panel = nullptr;
};
