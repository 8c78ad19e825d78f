// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/plannerchanges.h"

#include "planner/model/lines.h"
#include "planner/window/dayeditor.h"
#include "planner/window/recurrencepanel.h"
#include "planner/window/todoimporter.h"
#include "shell/frame/undostack.h"
#include "shell/program/program.h"

#include <utility>

PlannerChanges::PlannerChanges(const Program &program, Desk desk, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_desk(std::move(desk))
{
    connect(&m_desk.day, &DayEditor::loaded, this, [this] { m_desk.undo.forgetTyped(); });
    connect(&m_desk.day, &DayEditor::written, this, &PlannerChanges::saved);
    connect(&m_desk.day, &DayEditor::savedByCommand, this, [this] {
        emit said(PlannerLines::saved(m_desk.day.date(), m_program.state.dateStyle));
        m_desk.undo.offer();
    });
    connect(&m_desk.day, &DayEditor::exchanged, this, [this](const UndoStep &step) {
        m_desk.undo.push(step);
        m_desk.undo.offer();
    });
    connect(&m_desk.recurrence, &RecurrencePanel::walked, this, &PlannerChanges::walked);
    connect(&m_desk.import, &ToDoImporter::walked, this, &PlannerChanges::walked);
}

void PlannerChanges::saved(QDate date, const RecordChange &change)
{
    m_desk.undo.push(PlannerLines::saved(date, m_program.state.dateStyle), change,
                     [this, date] { m_desk.show(date); });
}

void PlannerChanges::walked(const QString &title, const RecordChange &change)
{
    if (change.isEmpty())
        return;
    m_desk.undo.push(title, change, [this] { m_desk.show({}); });
    m_desk.undo.offer();
}
