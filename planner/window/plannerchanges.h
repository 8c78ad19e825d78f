// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/recordchange.h"

#include <QDate>
#include <QObject>

#include <functional>

class DayEditor;
class RecurrencePanel;
class ToDoImporter;
class UndoStack;
struct Program;

/// What is done to the planner's days and can be undone: saves, rows cleared and pasted, walks over many
/// days, each of them one step.
class PlannerChanges final : public QObject
{
    Q_OBJECT
public:
    /// What it works on.
    struct Desk {
        DayEditor &day;
        RecurrencePanel &recurrence;
        ToDoImporter &import;
        UndoStack &undo;
        std::function<void(QDate date)> show; ///< shows what the files hold now, and the day of a valid date
    };

    PlannerChanges(const Program &program, Desk desk, QObject *parent);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    void saved(QDate date, const RecordChange &change);
    void walked(const QString &title, const RecordChange &change);

    const Program &m_program;
    Desk m_desk;
};
