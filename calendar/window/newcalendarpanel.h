// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/holidaysets.h"
#include "calendar/model/wallcalendar.h"
#include "shell/controls/taskpanel.h"

#include <QTimer>

class CalendarForm;
class SheetPane;
struct Program;

/// "New Calendar": all choices in one panel, each of which shows at once in the sheets beside them. "Change
/// Look" is the same for a calendar that is there.
class NewCalendarPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit NewCalendarPanel(const Program &program, QWidget *parent = nullptr);

    /// Begins with a new calendar as `NewCalendar` proposes it.
    void start();
    /// Begins with a new calendar of these choices.
    void start(const WallCalendar &proposed);
    /// Begins with the choices of a calendar that is there, at the sheet with the month of `shown`.
    void startLook(const WallCalendar &calendar, QDate shown = {});

    /// With what was chosen, and the days of its holidays.
    WallCalendar calendar() const;
    /// What is wrong, in quiet words beside the buttons.
    void refuse(const QString &why);

signals:
    /// The calendar has a title and is wanted.
    void accepted();

private:
    void begin(const WallCalendar &calendar, bool isNew);
    void accept();
    void refresh();

    const Program &m_program;
    HolidaySets m_sets;
    WallCalendar m_before;
    bool m_isNew = true;
    CalendarForm *m_form;
    SheetPane *m_pane;
    QPushButton *m_make;
    QTimer m_soon; ///< until the sheets are shown anew
};
