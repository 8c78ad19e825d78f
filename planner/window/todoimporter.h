// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerfiles.h"

#include <QObject>

#include <memory>

class ActivityBar;
class SlicedWork;
class ToDoImportRun;
struct Program;

/// Takes the To Do list's items into the planner while the window stays responsive: the status bar shows how
/// far it is, and stops it.
class ToDoImporter final : public QObject
{
    Q_OBJECT
public:
    ToDoImporter(Program &program, PlannerFiles &files, ActivityBar &activity, QWidget *window);
    ~ToDoImporter() override;

    /// Starts with the items dated on or after `earliest`. False when the list has none at all; the user was
    /// told.
    bool start(UntimedPlacement placement, QDate earliest);

signals:
    /// A walk begins or is over: nothing else may be done meanwhile.
    void busyChanged(bool isBusy);
    /// A walk ended, whether it came to its end or not: days may have changed.
    void filesChanged();
    /// Last, when all was said: what the walk wrote.
    void walked(const QString &title, const RecordChange &change);

private:
    void finish(bool wasStopped);

    Program &m_program;
    PlannerFiles &m_files;
    ActivityBar &m_activity;
    QWidget *m_window;
    SlicedWork *m_work;
    std::unique_ptr<ToDoImportRun> m_run;
};
