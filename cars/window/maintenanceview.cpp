// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/maintenanceview.h"

#include "cars/model/historylines.h"
#include "cars/model/messages.h"
#include "cars/model/scheduleupdate.h"
#include "cars/window/figurestrip.h"
#include "cars/window/opencar.h"
#include "shell/controls/titleline.h"
#include "shell/frame/functionwindow.h"
#include "shell/program/program.h"

using namespace Qt::Literals::StringLiterals;

MaintenanceView::MaintenanceView(const CarDesk &desk)
    : LogView(
          u"maintenance"_s, desk, CarPart::Maintenance,
          new LogPane(
              desk, CarPart::Maintenance, {u"Grid2"_s, u"maintenanceList"_s, u"MonthView1"_s},
              {{u"Kilometers"_s}, {u"12/30/2026 "_s}, {u"Inspect Brake Linings"_s, true}, {u"99999.99"_s}}),
          u"&Add Entry"_s)
    , m_figures(new FigureStrip(u"maintenanceFigures"_s, this))
{
    pane().setAmend([this](CarRecord &wanted, qsizetype row, LogPane::Adding adding) {
        offerSchedule(wanted, row, adding);
    });
    addContent(m_figures);
    addContent(&pane(), 1);
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

void MaintenanceView::showFigures()
{
    const DateStyle style = desk().program.state.dateStyle;
    const QDate today = desk().program.clock.today();
    const HistorySums sums = HistorySums::of(car().record(), part(), style, today);
    titleLine().setTitle(HistoryLines::newest(sums, part(), style));
    if (sums.count == 0)
        return m_figures->setFigures({});
    m_figures->setFigures(
        {{u"Entries"_s, QString::number(sums.count)},
         {u"In all"_s, HistoryLines::money(double(sums.cents))},
         {u"In "_s + QString::number(today.year()), HistoryLines::moneyOrNone(sums.thisYear)},
         {u"In "_s + QString::number(today.year() - 1), HistoryLines::moneyOrNone(sums.lastYear)}});
}
