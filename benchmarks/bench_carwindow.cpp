// SPDX-License-Identifier: GPL-3.0-or-later
// How long a car with full histories takes from the click on the card to the painted window, from there to
// each history, and from an edit to the painted figures.

#include "benchmarks/windowdesk.h"
#include "cars/model/carfiles.h"
#include "cars/window/automaint.h"

#include <QAbstractItemView>
#include <QAction>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowCount = 3000;

/// A program with a car of 3,000 rows in each history.
class Desk final : public WindowDesk
{
public:
    Desk()
    {
        CarRecord car;
        car.vehicle.name = u"Family van"_s;
        car.sheet.nameFirstActions();
        car.sheet.field(VehicleSheet::Odometer) = u"200000"_s;
        for (int row = 0; row < rowCount; ++row) {
            const QString reading = QString::number(1000 + 40 * row);
            const QString date = QDate(2020, 1, 1).addDays(row / 2).toString(u"MM/dd/yyyy");
            car.maintenance.append({reading, date, u"Change Oil and Filter"_s, u"49.90"_s});
            car.repairs.append({reading, date, u"New tires, front"_s, u"167.61"_s});
            car.fuel.append(
                {date, reading, QString::number(1040 + 40 * row), u"40"_s, u"1.1"_s, u"36.4"_s, u"3.74"_s});
        }
        if (!CarFiles(folder(), DateStyle::Usa).create(car, clock().now()).isDone)
            qFatal("cannot write the car");
    }
};

void openTracker(benchmark::State &state)
{
    Desk desk;
    BestTime best(state, mostToOpen);
    for ([[maybe_unused]] auto round : state) {
        best.start();
        AutoMaint window(desk.program);
        PaintWatch watch(window.centralWidget());
        window.show();
        watch.wait();
        best.stop();
    }
}
BENCHMARK(openTracker)->Iterations(10)->Unit(benchmark::kMillisecond);

/// The first opening of a view gives it its style, too.
void openView(benchmark::State &state, const QString &command, const QString &list)
{
    Desk desk;
    BestTime best(state, mostToOpen);
    for ([[maybe_unused]] auto round : state) {
        AutoMaint window(desk.program);
        PaintWatch shown(window.centralWidget());
        window.show();
        shown.wait();
        best.start();
        window.findChild<QAction *>(command)->trigger();
        PaintWatch watch(window.findChild<QAbstractItemView *>(list)->viewport());
        watch.wait();
        best.stop();
    }
}
BENCHMARK_CAPTURE(openView, maintenance, u"mVMaint"_s, u"maintenanceList"_s)
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openView, fuel, u"mVFuel"_s, u"fuelGrid"_s)->Iterations(5)->Unit(benchmark::kMillisecond);

/// A cost in the middle of the rows, with everything that follows from it.
void editACell(benchmark::State &state, const QString &command, const QString &list, int column)
{
    Desk desk;
    AutoMaint window(desk.program);
    window.show();
    window.findChild<QAction *>(command)->trigger();
    auto *grid = window.findChild<QAbstractItemView *>(list);
    PaintWatch watch(grid->viewport());
    watch.wait();
    int amount = 100;
    BestTime best(state, mostToEdit);
    for ([[maybe_unused]] auto round : state) {
        best.start();
        grid->model()->setData(grid->model()->index(0, column), QString::number(++amount));
        watch.wait();
        best.stop();
    }
}
BENCHMARK_CAPTURE(editACell, maintenance, u"mVMaint"_s, u"maintenanceList"_s, 3)
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(editACell, fuel, u"mVFuel"_s, u"fuelGrid"_s, 6)
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    return runOnScreen(argc, argv);
}
