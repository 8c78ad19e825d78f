// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/preview/printpanel.h"
#include "todo/model/shown.h"
#include "todo/model/todopages.h"

#include <array>

class DaySpan;
class QCheckBox;
class QComboBox;
class QLayout;
struct Program;

/// "Print": what of the lists comes onto paper, and how.
class ToDoPrintPanel final : public PrintPanel
{
    Q_OBJECT
public:
    ToDoPrintPanel(const Program &program, QWidget *window, QWidget *parent = nullptr);

    /// Offers what the lists have; what is shown is proposed.
    void start(const ToDoSheet &sheet, const Shown &shown);
    ToDoPages::Options options() const;

protected:
    QString refuse() override;

private:
    void fillChoices();
    QLayout *makeLook();

    const Program &m_program;
    QComboBox *m_lists;
    QComboBox *m_persons;
    DaySpan *m_days;
    std::array<QCheckBox *, 4> m_look{}; ///< boxes, dates, notes, empty lines
};
