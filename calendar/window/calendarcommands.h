// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "calendar/window/calendardesk.h"
#include "storage/trash.h"

#include <QObject>

#include <functional>

class CellTyping;
class FillCommands;
class HolidayPanel;
class NewCalendarPanel;
class QAction;
class QKeySequence;
class QMenu;
class RulesPanel;
class TrashPanel;

/// What is done to whole calendars: made, given another look, deleted, brought back.
class CalendarCommands final : public QObject
{
    Q_OBJECT
public:
    CalendarCommands(const CalendarDesk &desk, CellTyping &typing, FillCommands &filling, QObject *parent);

    void addCommands(QMenu *calendar);
    void addTrashCommands(QMenu *calendar);
    /// "New Calendar...", for buttons.
    QAction *createCommand() const { return m_create; }
    /// Whether a panel is open in which much can be changed before it is kept.
    bool isEditing() const;
    /// Whether a panel that is open holds something that was not kept yet.
    bool isModified() const;

signals:
    void said(const QString &line);
    /// The same of something that can be taken back.
    void done(const QString &line);

private:
    QAction *add(QMenu *menu, const QString &name, const QString &caption, std::function<void()> run,
                 const QKeySequence &key = {});
    void makePanel();
    void startNew();
    void startLook();
    QString whyNoCalendar() const;
    void startNextYear();
    void take();
    void startRules();
    void startHolidays();
    void remove();
    void openTrash();
    void bringBack(const Trash::Item &item);
    void open(QWidget *panel);

    CalendarDesk m_desk;
    CellTyping &m_typing;
    FillCommands &m_filling;
    NewCalendarPanel *m_panel = nullptr;
    bool m_isNew = true; ///< the panel makes a calendar, or else gives another look
    RulesPanel *m_rules = nullptr;
    HolidayPanel *m_holidays = nullptr;
    TrashPanel *m_trash = nullptr;
    QAction *m_create = nullptr;
};
