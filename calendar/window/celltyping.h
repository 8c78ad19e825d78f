// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "calendar/window/calendardesk.h"

#include <QObject>

/// Typing into a day: what is typed is shown and saved as one types, and is one step when the day is left.
class CellTyping final : public QObject
{
    Q_OBJECT
public:
    CellTyping(const CalendarDesk &desk, QObject *parent);

    bool isOpen() const { return m_date.isValid(); }
    /// Opens the day that is chosen at a line of it, or at a new one (-1) that begins with `typed`.
    void open(int line, const QString &typed = {});
    /// Makes what was typed a step. The line of the cursor is the chosen one then.
    void finish();

signals:
    /// The day was opened or left.
    void changed();
    void said(const QString &line);
    /// Something was typed, and can be taken back.
    void done(const QString &line);

private:
    void draft();
    void giveWay();
    void leave(bool byKey);
    QStringList textsOfDay() const;
    QString named(const QString &text) const;

    CalendarDesk m_desk;
    QDate m_date;          ///< that is typed into
    int m_person = 0;      ///< in whose column
    WallCalendar m_before; ///< when it was opened
    bool m_isDrafting = false;
    QList<int> m_ownLines; ///< of the day, those that stand in the opened cell
};
