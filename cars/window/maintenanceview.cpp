// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/maintenanceview.h"

#include "cars/model/messages.h"
#include "cars/model/scheduleupdate.h"
#include "cars/window/opencar.h"
#include "shell/frame/functionwindow.h"
#include "shell/program/program.h"

using namespace Qt::Literals::StringLiterals;

MaintenanceView::MaintenanceView(const CarDesk &desk)
    : HistoryView(u"maintenance"_s, desk, CarPart::Maintenance,
                  {u"Grid2"_s, u"maintenanceList"_s, u"MonthView1"_s})
{
    pane().setAmend([this](CarRecord &wanted, qsizetype row, LogPane::Adding adding) {
        offerSchedule(wanted, row, adding);
    });
}

/// What was done is the last time of an action of the schedule, if a person says so.
void MaintenanceView::offerSchedule(CarRecord &wanted, qsizetype row, LogPane::Adding adding)
{
    if (adding == LogPane::Adding::OnLeaving || !car().whyLocked(CarPart::Sheet).isEmpty())
        return;
    const auto update =
        ScheduleUpdate::of(wanted.maintenance[row], wanted.sheet, desk().program.state.dateStyle);
    if (update &&
        desk().program.dialogs.ask(&desk().window, CarMessages::lastTime(update->question())) == Answer::Yes)
        wanted.sheet.actions[std::size_t(update->row)] = update->after;
}
