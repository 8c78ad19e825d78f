// SPDX-License-Identifier: GPL-3.0-or-later
// How long a chart of many points takes until it stands on the screen, and when a key shows a part of it.

#include "shell/charts/linechartview.h"
#include "shell/look/theme.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>

#include <benchmark/benchmark.h>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pointCount = 10000;
constexpr double most = 100; ///< milliseconds

LineChart chart(int seriesCount)
{
    LineChart chart;
    chart.title = u"Weight"_s;
    for (int index = 0; index < seriesCount; ++index) {
        LineChart::Series series{u"Person %1"_s.arg(index + 1), {}};
        for (int day = 0; day < pointCount / seriesCount; ++day)
            series.points << LineChart::Point{.x = LineChart::dayAt(QDate(1998, 1, 1)) + day,
                                              .y = 150 + 20 * std::sin(day * 0.003) +
                                                   3 * std::sin(day * 1.7 + index)};
        chart.series << series;
    }
    return chart;
}

/// Set, laid out and painted.
void drawPoints(benchmark::State &state)
{
    const LineChart points = chart(int(state.range(0)));
    LineChartView view(u"chart"_s);
    view.resize(1200, 600);
    view.show();
    QApplication::processEvents();
    double best = 1e9;
    int round = 0;
    for ([[maybe_unused]] auto once : state) {
        QElapsedTimer timer;
        timer.start();
        view.setChart(points);
        view.zoom(round++ % 2 == 0 ? 0.5 : 2, points.series[0].points[pointCount / 20].x);
        QApplication::processEvents();
        benchmark::DoNotOptimize(view.grab());
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    state.counters["best_ms"] = best;
    state.counters["limit"] = most;
    if (best > most)
        state.SkipWithError("takes too long");
}
BENCHMARK(drawPoints)->Arg(1)->Arg(4)->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Theme::apply(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
