// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/fuelview.h"

#include "cars/model/carnumbers.h"
#include "cars/model/fuellines.h"
#include "cars/model/presentreading.h"
#include "cars/window/carcharts.h"
#include "cars/window/fuelcalculatorpanel.h"
#include "cars/window/logmodel.h"
#include "cars/window/opencar.h"
#include "shell/charts/linechartview.h"
#include "shell/controls/figurestrip.h"
#include "shell/controls/titleline.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int chartHeight = 204;
constexpr int leastHeightWithChart = 620;
} // namespace

FuelView::FuelView(const CarDesk &desk)
    : LogView(u"fuel"_s, desk, CarPart::Fuel,
              new LogPane(desk, CarPart::Fuel, {u"fuelEntry"_s, u"fuelGrid"_s, u"MonthView3"_s},
                          {{u"12/30/2026 "_s},
                           {u"Previous"_s},
                           {u"Reading"_s},
                           {u"Driven"_s},
                           {u"Gallons"_s},
                           {u"one missing"_s},
                           {u"9999.99"_s}}),
              u"&Add Fill-up"_s)
    , m_figures(new FigureStrip(u"fuelFigures"_s, this))
    , m_chart(new LineChartView(u"fuelChart"_s, this))
{
    pane().setAmend(
        [this](CarRecord &wanted, qsizetype row, LogPane::Adding) { followReading(wanted, row); });
    addParts({m_figures, m_chart});
}

void FuelView::openCalculators()
{
    finishEdit();
    if (!m_calculator) {
        m_calculator = new FuelCalculatorPanel(desk());
        desk().views.addPanel(m_calculator);
        connect(m_calculator, &FuelCalculatorPanel::said, this, &FuelView::said);
        connect(m_calculator, &TaskPanel::left, this, [this] {
            desk().views.open(this);
            pane().setFocus();
        });
        connect(m_calculator, &FuelCalculatorPanel::fillUpWanted, this, [this](const FuelRow &fillUp) {
            desk().views.open(this);
            pane().propose({fillUp.date, fillUp.previous, fillUp.current, fillUp.driven, fillUp.used,
                            fillUp.economy, fillUp.cost});
        });
    }
    desk().window.closePreview();
    const FuelLog &log = car().record().fuel;
    m_calculator->begin(FuelFigures(log, desk().program.state.dateStyle),
                        log.isEmpty() ? QString() : log.last().current);
    desk().views.open(m_calculator);
    m_calculator->setFocus();
}

/// A fill-up further on is where the car is now: the sheet's reading follows it.
void FuelView::followReading(CarRecord &wanted, qsizetype row)
{
    const bool mayFollow = car().whyLocked(CarPart::Sheet).isEmpty();
    if (mayFollow && PresentReading::follow(wanted, wanted.fuel[row].current))
        emit said(FuelLines::readingFollowed(wanted.sheet.field(VehicleSheet::Odometer)));
}

void FuelView::showFigures()
{
    const DistanceUnit unit = car().unit();
    const DateStyle style = desk().program.state.dateStyle;
    const FuelFigures &figures = pane().model().figures();
    const FuelSums sums = figures.sums();
    titleLine().setTitle(FuelLines::answer(sums, unit));
    QList<FigureStrip::Figure> strip;
    if (const int newest = figures.newest(); newest >= 0)
        strip.append({FuelLines::lastFillUp(figures.fillUps()[newest], style, desk().program.clock.today()),
                      CarNumbers::text(*figures.fillUps()[newest].economy, 1)});
    if (sums.best)
        strip.append({u"Best / worst"_s,
                      CarNumbers::text(*sums.best, 1) + u" / "_s + CarNumbers::text(*sums.worst, 1)});
    if (sums.centsPerDistance)
        strip.append({FuelLines::perDistance(unit), HistoryLines::money(*sums.centsPerDistance)});
    if (sums.centsPerAmount)
        strip.append({FuelLines::perFuel(unit), HistoryLines::money(*sums.centsPerAmount)});
    if (sums.fillUps > 0)
        strip.append({FuelLines::inAll(sums.fillUps), HistoryLines::money(double(sums.cents))});
    m_figures->setFigures(strip);
    LineChart chart = CarCharts::consumption(figures, unit, style);
    // The room is for the line; the title names what it shows.
    chart.title = FuelLines::chartTitle(unit);
    chart.across.name.clear();
    chart.up.name.clear();
    m_chart->setChart(chart);
    placeChart();
}

/// In a low window the rows need the room, and the chart has a panel of its own.
void FuelView::placeChart()
{
    m_chart->setFixedHeight(chartHeight);
    m_chart->setVisible(height() >= leastHeightWithChart && !m_chart->chart().isEmpty());
}

void FuelView::resizeEvent(QResizeEvent *event)
{
    LogView::resizeEvent(event);
    placeChart();
}
