// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "weight/model/personfiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int weighIns = 10'000;

const QString name = u"Anne Lind"_s;

WeightSheet fullSheet()
{
    WeightSheet sheet;
    sheet.field(WeightSheet::Name) = name;
    sheet.field(WeightSheet::BeginningWeight) = u"180."_s;
    for (int row = 0; row < weighIns; ++row)
        sheet.weighIns.append({QDate(1999, 1, 1).addDays(row).toString(u"MM/dd/yyyy"),
                               u"%1.%2"_s.arg(165 + row % 13).arg(row % 10)});
    return sheet;
}

void loadAFullPerson(benchmark::State &state)
{
    constexpr double most = 6;
    const QTemporaryDir temporary;
    const DataFolder folder(temporary.path());
    PersonFiles persons(folder);
    if (!persons.create(fullSheet()))
        qFatal("cannot write the person");
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            QFile file(folder.filePath(PersonFiles::fileName(name)));
            if (!file.open(QIODevice::ReadOnly))
                qFatal("no file");
            benchmark::DoNotOptimize(file.readAll().split('\n'));
        });
        limit.measure([&] { benchmark::DoNotOptimize(persons.read(name)); });
    }
}
BENCHMARK(loadAFullPerson)->UseManualTime()->MinTime(1);

void writeAFullPerson(benchmark::State &state)
{
    constexpr double most = 3;
    const WeightSheet sheet = fullSheet();
    const QByteArray bytes = PersonFiles::encode(sheet);
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] { benchmark::DoNotOptimize(bytes.split('\n')); });
        limit.measure([&] { benchmark::DoNotOptimize(PersonFiles::encode(sheet)); });
    }
}
BENCHMARK(writeAFullPerson)->UseManualTime()->MinTime(1);

void sortAFullPerson(benchmark::State &state)
{
    const WeightSheet sheet = fullSheet();
    for ([[maybe_unused]] const auto _ : state) {
        WeightTable table = sheet.weighIns;
        table.sort(WeightTable::Column::Weight, Qt::DescendingOrder);
        table.setWeight(0, u"170.1"_s);
        benchmark::DoNotOptimize(table);
    }
}
BENCHMARK(sortAFullPerson)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
