// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "shell/controls/taskpanel.h"

#include <array>

class DaySpan;
class QLineEdit;
class QRadioButton;
struct Program;

/// "Bar over Days": its words, its first and last day, and its tone.
class BarPanel final : public TaskPanel
{
    Q_OBJECT
public:
    BarPanel(const Program &program, QWidget *window, QWidget *parent = nullptr);

    /// Begins with this bar; `isThere`: the calendar has it already.
    void start(const CalendarSpan &span, bool isThere);
    CalendarSpan span() const;
    /// What is wrong, in quiet words beside the buttons.
    void refuse(const QString &why);

signals:
    void accepted();
    void removeWanted();

private:
    QWidget *makeTones();
    void accept();

    QLineEdit *m_text;
    DaySpan *m_days;
    std::array<QRadioButton *, CalendarSpan::tones> m_tones{};
    QPushButton *m_remove = nullptr;
};
