// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/calendardesk.h"
#include "shell/writing/spellwalk.h"

#include <QObject>

#include <vector>

class CellTyping;
class QMenu;
class WindowWriting;

/// The spelling of the calendar maker: the cells are checked as one types, and the walk goes through what was
/// typed or changed by hand.
class CalendarSpelling final : public QObject
{
    Q_OBJECT
public:
    CalendarSpelling(const CalendarDesk &desk, CellTyping &typing, QObject *parent);

    void addCommands(QMenu *menu);

signals:
    void said(const QString &line);

private:
    struct Place {
        QDate date;
        int line = 0;
    };

    std::vector<WalkedText> texts();
    void change(const WalkedText &text);

    CalendarDesk m_desk;
    CellTyping &m_typing;
    WindowWriting *m_tools;
    std::vector<Place> m_places; ///< of the texts of the walk
};
