// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/recordchange.h"

#include <QDate>
#include <QObject>

#include <functional>

class Commands;
class DayEditor;
class QMenu;
class QWidget;
class RecurrencePanel;
class ToDoImporter;
class TrashPanel;
class UndoStack;
class WorkViews;
struct Program;

/// What is done to the planner's days and can be undone: saves, rows cleared and pasted, walks over many days
/// (each of them one step), and what was deleted and is brought back.
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
        std::function<bool()> mayReplace; ///< asks about what was typed and not saved
        std::function<void(QWidget *panel)> openPanel;
        std::function<void(QDate date)> show; ///< shows what the files hold now, and the day of a valid date
    };

    PlannerChanges(const Program &program, Desk desk, QObject *parent);

    /// Puts "Undo", "Redo" and "Bring Back Deleted..." into `edit`, and the panel of the last into `views`.
    void addCommands(QMenu *edit, Commands &commands, WorkViews &views);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    void saved(QDate date, const RecordChange &change);
    void walked(const QString &title, const RecordChange &change);
    void openTrash();
    void bringBack(const Trash::Item &item);

    const Program &m_program;
    Desk m_desk;
    TrashPanel *m_trash = nullptr;
    Trash::State m_trashState = Trash::State::Whole; ///< after the last save
};
