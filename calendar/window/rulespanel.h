// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "shell/controls/taskpanel.h"

class RulesEditor;
struct Program;

/// "Rules": what comes back in a calendar, such as the paper bin every second Tuesday.
class RulesPanel final : public TaskPanel
{
    Q_OBJECT
public:
    /// `window` is what the calendar of a date floats over.
    RulesPanel(const Program &program, QWidget *window, QWidget *parent = nullptr);

    /// Begins with the rules of `calendar`.
    void start(const WallCalendar &calendar);
    QList<CalendarRule> rules() const;
    /// Whether what was changed would be lost without the question that leaving asks.
    bool isModified() const { return rules() != m_before; }

    /// Asks before changes are dropped.
    void leave() override;

signals:
    /// The rules are wanted; each has words.
    void accepted();

private:
    void accept();

    const Program &m_program;
    RulesEditor *m_editor;
    QList<CalendarRule> m_before;
};
