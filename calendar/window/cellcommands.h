// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "calendar/window/calendardesk.h"

#include <QObject>

#include <functional>

class CellTyping;
class LineDatePanel;
class QAction;
class QMenu;

/// What is done to the lines of a day: removed, brought back, moved to another date, put in order, kept for
/// every year.
class CellCommands final : public QObject
{
    Q_OBJECT
public:
    CellCommands(const CalendarDesk &desk, CellTyping &typing, QObject *parent);

    void addCommands(QMenu *edit);
    /// "Remove Line" and "Move to Another Date...", for buttons.
    QAction *removeCommand() const { return m_remove; }
    QAction *dateCommand() const { return m_date; }
    /// The chosen line is another one.
    void follow();

signals:
    void said(const QString &line);
    /// The same of something that can be taken back.
    void done(const QString &line);

private:
    QAction *add(QMenu *menu, const QString &name, const QString &caption, std::function<void()> run,
                 std::function<QString()> unless);
    QString whyNoLine() const;
    QString whyNotYearly() const;
    QString whyNoneRemoved() const;
    DayLine chosen() const;
    int line() const;
    bool make(const QString &title, const WallCalendar &after);
    void remove();
    void order(int by);
    void setYearly();
    void restore();
    void openPanel();
    void moveByPanel();
    void move(QDate from, int line, QDate to, bool isCopied);
    void emptyMonth();

    CalendarDesk m_desk;
    CellTyping &m_typing;
    QAction *m_remove = nullptr;
    QAction *m_date = nullptr;
    QAction *m_yearly = nullptr;
    LineDatePanel *m_panel = nullptr;
};
