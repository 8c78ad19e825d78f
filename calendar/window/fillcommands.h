// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "calendar/window/calendardesk.h"
#include "storage/filestamp.h"

#include <QObject>
#include <QTimer>

#include <vector>

class CellTyping;
class FillPanel;
class QAction;
class QMenu;

/// Fills the calendar from what the household has, when the person asks for it, and says when that has
/// changed since.
class FillCommands final : public QObject
{
    Q_OBJECT
public:
    FillCommands(const CalendarDesk &desk, CellTyping &typing, QObject *parent);

    void addCommands(QMenu *calendar);
    /// "Fill...", for a button.
    QAction *command() const { return m_fill; }
    /// Shows the panel, with what was taken the last time.
    void open();
    /// The same for a calendar that is to be filled as another one was.
    void open(const QList<LineSource> &sources);
    /// Looks, once the window has been painted, whether what the calendar was filled from has changed since.
    void checkSoon();
    /// The same where a file of one of the functions has changed since it looked last.
    void checkAgain();

signals:
    void said(const QString &line);
    /// The same of something that can be taken back.
    void done(const QString &line);

private:
    void fill();
    void check();
    std::vector<FileStamp> stamps() const;

    CalendarDesk m_desk;
    CellTyping &m_typing;
    FillPanel *m_panel = nullptr;
    QAction *m_fill = nullptr;
    QTimer m_soon;
    std::vector<FileStamp> m_seen;
};
