// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "cars/model/carfiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowCount = 3000;

/// A car with as many rows as there may be in each of its histories.
CarRecord fullCar()
{
    CarRecord car;
    car.vehicle.name = u"Family van"_s;
    car.sheet.nameFirstActions();
    for (int row = 0; row < rowCount; ++row) {
        const QString reading = QString::number(1000 + 40 * row);
        const QString date = QDate(2020, 1, 1).addDays(row / 2).toString(u"MM/dd/yyyy");
        car.maintenance.append({reading, date, u"Change Oil and Filter"_s, u"49.90"_s});
        car.repairs.append({reading, date, u"New tires, front"_s, u"167.61"_s});
        car.fuel.append(
            {date, reading, QString::number(1040 + 40 * row), u"40"_s, u"1.1"_s, u"36.4"_s, u"3.74"_s});
    }
    return car;
}

void loadAFullCar(benchmark::State &state)
{
    constexpr double most = 6;
    const QTemporaryDir temporary;
    const DataFolder folder(temporary.path());
    CarFiles cars(folder, DateStyle::Usa);
    if (!cars.create(fullCar(), QDateTime(QDate(2026, 11, 22), QTime(12, 0))).isDone)
        qFatal("cannot write the car");
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            for (const CarPart part : carParts) {
                QFile file(folder.filePath(VehicleFiles::fileName(part, 1)));
                if (!file.open(QIODevice::ReadOnly))
                    qFatal("no file");
                benchmark::DoNotOptimize(file.readAll().split('\n'));
            }
        });
        limit.measure([&] { benchmark::DoNotOptimize(cars.read(1)); });
    }
}
BENCHMARK(loadAFullCar)->UseManualTime()->MinTime(1);

} // namespace

BENCHMARK_MAIN();
