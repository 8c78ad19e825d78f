// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "calendar/window/calendardesk.h"

#include <QObject>

class BarPanel;
class CellTyping;
class QMenu;

/// The bars over several days: made of the days that are chosen, changed, removed.
class BarCommands final : public QObject
{
    Q_OBJECT
public:
    BarCommands(const CalendarDesk &desk, CellTyping &typing, QObject *parent);

    void addCommands(QMenu *edit);

signals:
    void said(const QString &line);
    /// The same of something that can be taken back.
    void done(const QString &line);

private:
    int barOfDay() const;
    void openNew();
    void open(int span);
    void start(const CalendarSpan &span);
    void keep();
    void remove();
    void leave(const QString &title, const WallCalendar &after);

    CalendarDesk m_desk;
    CellTyping &m_typing;
    BarPanel *m_panel = nullptr;
    int m_span = -1; ///< the bar that the panel shows; -1: a new one
};
