// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "planner/model/dayrecord.h"
#include "planner/model/plannersearch.h"
#include "planner/model/recurrencerun.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int tenYears = 3652;
constexpr int searchedYears = 30;

/// Fourteen different entries for every date of the year.
void fillYear(PlannerFiles &files, int year)
{
    for (QDate date(year, 1, 1); date.year() == year; date = date.addDays(1)) {
        PlannerDay day;
        for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
            day.times[row] = u"%1:30 PM"_s.arg(row % 9 + 1);
            day.texts[row] =
                u"Appointment %1 with the gardener's cousin, no. %2"_s.arg(row).arg(date.dayOfYear());
        }
        if (!files.write(date, day))
            qFatal("cannot fill a year");
    }
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ? file.readAll() : QByteArray();
}

Recurrence dailyForTenYears()
{
    Recurrence recurrence;
    recurrence.beginning = QDate(2026, 1, 1);
    recurrence.occurrences = tenYears;
    return recurrence;
}

/// The same records, a year after the other, each file opened once and written from its first record to its
/// last.
void writeSequentially(const DataFolder &folder, const PlannerDay &day)
{
    const QByteArray bytes = plannerDayLayout.encode(day);
    const QDate end = QDate(2026, 1, 1).addDays(tenYears);
    for (int year = 2026; year <= end.year(); ++year) {
        QFile file(folder.filePath(DayRecord::yearFileName(year)));
        file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
        for (int record = 1; record <= DayRecord::last; ++record) {
            const QDate date = DayRecord::date(record, year);
            if (!date.isValid() || date >= end)
                continue;
            file.seek(qint64(record - 1) * DayRecord::length);
            file.write(bytes);
        }
    }
}

void insertTenYearsOfDates(benchmark::State &state)
{
    const Appointment appointment{u"9:30 AM"_s, u"Water the ferns"_s};
    PlannerDay day;
    day.times[0] = appointment.time;
    day.texts[0] = appointment.text;
    day.mark = PlannerDay::savedMark;
    Limit limit(state, 15);
    for ([[maybe_unused]] auto round : state) {
        const QTemporaryDir walked;
        const QTemporaryDir written;
        const DataFolder folder(walked.path());
        limit.measure([&] {
            RecurrenceRun run(folder, UntimedPlacement::First, RecurrenceAction::Insert, appointment,
                              dailyForTenYears());
            while (run.step()) {}
        });
        limit.reference([&] { writeSequentially(DataFolder(written.path()), day); });
    }
}

void showMonthOfFullYear(benchmark::State &state)
{
    const QTemporaryDir temporary;
    const DataFolder folder(temporary.path());
    PlannerFiles files(folder);
    fillYear(files, 2026);
    const QString path = folder.filePath(DayRecord::yearFileName(2026));
    Limit limit(state, 10);
    for ([[maybe_unused]] auto round : state) {
        limit.measure([&] { benchmark::DoNotOptimize(files.days(QDate(2026, 11, 1), QDate(2026, 11, 30))); });
        limit.reference([&] { benchmark::DoNotOptimize(bytesOf(path)); });
    }
}

void searchThirtyFullYears(benchmark::State &state, const QString &text)
{
    const QTemporaryDir temporary;
    const DataFolder folder(temporary.path());
    PlannerFiles files(folder);
    for (int year = 2000; year < 2000 + searchedYears; ++year)
        fillYear(files, year);
    Limit limit(state, 5);
    for ([[maybe_unused]] auto round : state) {
        limit.measure([&] {
            PlannerSearch search(files, text);
            while (search.step()) {}
            benchmark::DoNotOptimize(search.hits().data());
        });
        limit.reference([&] {
            for (const int year : files.years())
                benchmark::DoNotOptimize(bytesOf(folder.filePath(DayRecord::yearFileName(year))));
        });
    }
}

} // namespace

BENCHMARK(insertTenYearsOfDates)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);
BENCHMARK(showMonthOfFullYear)->UseManualTime()->Iterations(1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchThirtyFullYears, rareWord, u"dentist"_s)
    ->UseManualTime()
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchThirtyFullYears, manyHits, u"GARDENER"_s)
    ->UseManualTime()
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchThirtyFullYears, twoLetters, u"zz"_s)
    ->UseManualTime()
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
