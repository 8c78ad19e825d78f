// SPDX-License-Identifier: GPL-3.0-or-later
// How long a person with 10,000 weigh-ins takes from the click on the card to the painted window, from an
// edit to the painted table, and until the whole graph stands there and names a point.

#include "benchmarks/windowdesk.h"
#include "shell/charts/linechartview.h"
#include "weight/model/personfiles.h"
#include "weight/window/weighttracker.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QMouseEvent>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int weighIns = 10'000;
constexpr double mostToDraw = 100; ///< the whole graph

/// A program with a person who has weighed herself for 27 years.
class Desk final : public WindowDesk
{
public:
    Desk()
    {
        WeightSheet sheet;
        sheet.field(WeightSheet::Name) = u"Anne Lind"_s;
        sheet.field(WeightSheet::BeginningWeight) = u"180."_s;
        sheet.field(WeightSheet::GoalWeight) = u"160."_s;
        for (int row = 0; row < weighIns; ++row)
            sheet.weighIns.append({QDate(1999, 1, 1).addDays(row).toString(u"MM/dd/yyyy"),
                                   u"%1.%2"_s.arg(165 + row % 13).arg(row % 10)});
        if (!PersonFiles(folder()).create(sheet))
            qFatal("cannot write the person");
    }
};

void openTracker(benchmark::State &state)
{
    Desk desk;
    BestTime best(state, mostToOpen);
    for ([[maybe_unused]] auto round : state) {
        best.start();
        WeightTracker window(desk.program);
        PaintWatch watch(window.centralWidget());
        window.show();
        watch.wait();
        best.stop();
    }
}
BENCHMARK(openTracker)->Iterations(10)->Unit(benchmark::kMillisecond);

/// A weight of one of the last rows, with everything that follows from it.
void editAWeight(benchmark::State &state)
{
    Desk desk;
    WeightTracker window(desk.program);
    window.show();
    auto *grid = window.findChild<QAbstractItemView *>(u"Grid4"_s);
    PaintWatch watch(grid->viewport());
    watch.wait();
    int weight = 150;
    BestTime best(state, mostToEdit);
    for ([[maybe_unused]] auto round : state) {
        best.start();
        grid->model()->setData(grid->model()->index(weighIns - 2, 1), QString::number(++weight));
        watch.wait();
        best.stop();
    }
}
BENCHMARK(editAWeight)->Iterations(50)->Unit(benchmark::kMillisecond);

/// What a chart paints its lines on.
QWidget *plotOf(const QWidget &chart)
{
    const auto parts = chart.findChildren<QWidget *>();
    const auto plot =
        std::ranges::find_if(parts, [](const QWidget *part) { return part->inherits("QCustomPlot"); });
    if (plot == parts.end())
        qFatal("no plot");
    return *plot;
}

/// The whole history is chosen, and stands there.
void showTheWholeHistory(benchmark::State &state)
{
    Desk desk;
    WeightTracker window(desk.program);
    window.show();
    window.findChild<QAction *>(u"mVGraph"_s)->trigger();
    auto *shown = window.findChild<QComboBox *>(u"graphShown"_s);
    auto *chart = window.findChild<QWidget *>(u"Chart2D1"_s);
    QApplication::processEvents();
    PaintWatch watch(plotOf(*chart));
    BestTime best(state, mostToDraw);
    for ([[maybe_unused]] auto round : state) {
        best.start();
        shown->setCurrentIndex(1);
        watch.wait();
        best.stop();
        shown->setCurrentIndex(0);
        watch.wait();
    }
}
BENCHMARK(showTheWholeHistory)->Iterations(10)->Unit(benchmark::kMillisecond);

/// The mouse names one point of 10,000 after the other.
void nameAPoint(benchmark::State &state)
{
    Desk desk;
    WeightTracker window(desk.program);
    window.show();
    window.findChild<QAction *>(u"mVGraph"_s)->trigger();
    window.findChild<QComboBox *>(u"graphShown"_s)->setCurrentIndex(1);
    auto *chart = window.findChild<LineChartView *>(u"Chart2D1"_s);
    QApplication::processEvents();
    PaintWatch watch(plotOf(*chart));
    qsizetype point = 0;
    BestTime best(state, mostToEdit);
    for ([[maybe_unused]] auto round : state) {
        const QPointF place = chart->placeOf({0, point += weighIns / 100});
        QMouseEvent move(QEvent::MouseMove, place, chart->mapToGlobal(place), Qt::NoButton, {}, {});
        best.start();
        QApplication::sendEvent(chart, &move);
        watch.wait();
        best.stop();
    }
}
BENCHMARK(nameAPoint)->Iterations(50)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    return runOnScreen(argc, argv);
}
