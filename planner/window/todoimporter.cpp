// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/todoimporter.h"

#include "planner/model/lines.h"
#include "planner/model/messages.h"
#include "planner/model/todoimportrun.h"
#include "shell/controls/activitybar.h"
#include "shell/core/slicedwork.h"
#include "shell/program/program.h"

#include <utility>

ToDoImporter::ToDoImporter(Program &program, PlannerFiles &files, ActivityBar &activity, QWidget *window)
    : QObject(window)
    , m_program(program)
    , m_files(files)
    , m_activity(activity)
    , m_window(window)
    , m_work(new SlicedWork(this))
{
    connect(m_work, &SlicedWork::progressed, this,
            [this] { m_activity.showProgress(m_run->done(), m_run->count(), true); });
    connect(m_work, &SlicedWork::finished, this, &ToDoImporter::finish);
    connect(&activity, &ActivityBar::stopRequested, m_work, &SlicedWork::stop);
}

ToDoImporter::~ToDoImporter() = default;

bool ToDoImporter::start(UntimedPlacement placement, QDate earliest)
{
    auto items = ToDoImport::items(m_program.folder, m_program.state.dateStyle);
    if (items.empty()) {
        m_program.dialogs.ask(m_window, PlannerMessages::nothingToImport());
        return false;
    }
    m_run = std::make_unique<ToDoImportRun>(m_files, placement, std::move(items), earliest);
    emit busyChanged(true);
    m_activity.say(PlannerLines::updating());
    m_work->start([this] { return m_run->step(); });
    return true;
}

void ToDoImporter::finish(bool wasStopped)
{
    const auto run = std::exchange(m_run, {});
    emit busyChanged(false);
    m_activity.showProgress(0, 0);
    emit filesChanged();
    // Last, since the day that comes back says in which row it is.
    m_activity.say(run->report(wasStopped, m_program.state.dateStyle));
    emit walked(PlannerLines::toDosImported(), run->change());
}
