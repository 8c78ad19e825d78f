// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/plannerchanges.h"

#include "planner/model/lines.h"
#include "planner/model/plannertrash.h"
#include "planner/window/dayeditor.h"
#include "planner/window/recurrencepanel.h"
#include "planner/window/todoimporter.h"
#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/frame/trashpanel.h"
#include "shell/frame/undostack.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

PlannerChanges::PlannerChanges(const Program &program, Desk desk, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_desk(std::move(desk))
{
    connect(&m_desk.day, &DayEditor::loaded, this, [this] { m_desk.undo.forgetTyped(); });
    connect(&m_desk.day, &DayEditor::written, this, &PlannerChanges::saved);
    connect(&m_desk.day, &DayEditor::savedByCommand, this, [this] {
        emit said(FrameLines::withTrash(PlannerLines::saved(m_desk.day.date(), m_program.state.dateStyle),
                                        m_trashState));
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
    m_trashState = change.trashState();
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

void PlannerChanges::addCommands(QMenu *edit, Commands &commands, WorkViews &views)
{
    m_trash = new TrashPanel(m_program.state.dateStyle, &views);
    views.addPanel(m_trash);
    connect(m_trash, &TrashPanel::chosen, this, &PlannerChanges::bringBack);
    m_desk.undo.addCommands(edit);
    commands.writing(commands.add(edit, u"mEBack"_s, u"Bring &Back Deleted..."_s, [this] { openTrash(); }));
    edit->addSeparator();
}

void PlannerChanges::openTrash()
{
    m_trash->setItems(PlannerTrash::items(m_program.folder, m_program.clock.now()));
    m_desk.openPanel(m_trash);
}

void PlannerChanges::bringBack(const Trash::Item &item)
{
    if (!m_desk.mayReplace())
        return;
    const auto result = PlannerTrash::bringBack(m_program.folder, item, m_desk.day.placement());
    if (!result.isDone) {
        emit said(PlannerLines::notSaved());
        return;
    }
    const QDate first = result.firstDate;
    m_desk.show(first.isValid() ? first : m_desk.day.date());
    m_desk.undo.push(PlannerLines::broughtBack(item.title), result.change,
                     [this, first] { m_desk.show(first); });
    emit said(PlannerLines::broughtBack(item.title) + PlannerLines::withoutRoom(result.full));
    if (first.isValid())
        m_desk.undo.offer();
}
