// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "calendar/model/calendaredits.h"
#include "calendar/model/calendarfile.h"
#include "calendar/model/calendarfiles.h"
#include "calendar/model/calendarfill.h"
#include "calendar/model/opencalendar.h"
#include "planner/model/plannerfiles.h"
#include "planner/model/plannernews.h"
#include "shell/core/clock.h"
#include "todo/model/todofiles.h"
#include "todo/model/todonews.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 23);
const QDate first(2027, 1, 1);

constexpr int linesOfADay = 14;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        qFatal("no file");
    return file.readAll();
}

WallCalendar emptyCalendar(int months)
{
    WallCalendar calendar;
    calendar.title = u"Family Calendar 2027"_s;
    calendar.from = first;
    calendar.months = months;
    return calendar;
}

/// As many lines on every day as the planner has rows, every seventh of them edited.
WallCalendar fullCalendar(int months)
{
    WallCalendar calendar = emptyCalendar(months);
    for (QDate date = calendar.from; date <= calendar.lastDay(); date = date.addDays(1)) {
        for (int i = 0; i < linesOfADay; ++i) {
            const QString text =
                u"%1:30 PM Appointment with the gardener's cousin, no. %2"_s.arg(i % 9 + 1).arg(
                    date.dayOfYear());
            calendar.days[date].append(
                {LineSource::Planner, date, false, text, i % 7 == 0 ? u"The cousin"_s : text});
        }
    }
    return calendar;
}

void openTwoYears(benchmark::State &state)
{
    constexpr double most = 10;
    const QTemporaryDir temporary;
    const DataFolder folder(temporary.path());
    const SystemClock clock;
    if (CalendarFiles::create(folder, fullCalendar(24)) != 1)
        qFatal("cannot write the calendar");
    const QString path = folder.filePath(CalendarFiles::name(1));
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] { benchmark::DoNotOptimize(contentOf(path).split('\n')); });
        limit.measure([&] {
            OpenCalendar calendar(folder, clock, 1);
            calendar.load();
            benchmark::DoNotOptimize(calendar.calendar().days.size());
        });
    }
}
BENCHMARK(openTwoYears)->UseManualTime()->MinTime(1);

/// What a save makes of it, but for the disk.
void writeTwoYears(benchmark::State &state)
{
    constexpr double most = 60;
    const WallCalendar calendar = fullCalendar(24);
    const QByteArray former = CalendarFile::write(calendar);
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] { benchmark::DoNotOptimize(former.split('\n')); });
        limit.measure([&] { benchmark::DoNotOptimize(CalendarFile::write(calendar, former)); });
    }
}
BENCHMARK(writeTwoYears)->UseManualTime()->MinTime(1);

/// A planner with an entry in each row of a year, and a thing to do on each of its days.
class FullHousehold
{
public:
    FullHousehold()
    {
        PlannerFiles files(folder);
        ToDoSheet sheet;
        const int list = sheet.addList({0, ListKind::Plain, u"Home"_s});
        std::vector<ToDoItem> items;
        for (QDate date = first; date.year() == first.year(); date = date.addDays(1)) {
            PlannerDay day;
            for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
                day.times[row] = u"%1:30 PM"_s.arg(row % 9 + 1);
                day.texts[row] =
                    u"Appointment %1 with the gardener's cousin, no. %2"_s.arg(row).arg(date.dayOfYear());
            }
            if (!files.write(date, day))
                qFatal("cannot fill the planner");
            items.push_back(
                {.list = list, .due = date, .text = u"Water the ferns, day %1"_s.arg(date.dayOfYear())});
        }
        sheet.addAll(items);
        if (!ToDoFiles(folder).save(sheet))
            qFatal("cannot write the lists");
    }

    /// The files as their own functions read them, with all their texts.
    void read() const
    {
        benchmark::DoNotOptimize(PlannerFiles(folder).days(first, last));
        const ToDoSheet sheet = ToDoFiles(folder).read(DateStyle::Usa, today);
        for (int row = 0; row < sheet.rowCount(); ++row)
            benchmark::DoNotOptimize(sheet.item(row));
    }

    FillPlan fill(const WallCalendar &calendar) const
    {
        QList<FillSource> sources = CalendarFill::sourcesOf(PlannerNews::dayNotes(folder, first, last));
        sources += CalendarFill::sourcesOf(ToDoNews::dayNotes(folder, DateStyle::Usa, first, last, today));
        return CalendarFill::plan(calendar, sources, today);
    }

private:
    const QDate last = first.addYears(1).addDays(-1);
    QTemporaryDir temporary;
    DataFolder folder{temporary.path()};
};

void fillYear(benchmark::State &state, bool isAgain)
{
    constexpr double most = 5;
    const FullHousehold household;
    WallCalendar calendar = emptyCalendar(12);
    if (isAgain)
        calendar = household.fill(calendar).calendar;
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] { household.read(); });
        limit.measure([&] { benchmark::DoNotOptimize(household.fill(calendar).summary); });
    }
}
BENCHMARK_CAPTURE(fillYear, theFirstTime, false)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(fillYear, again, true)->UseManualTime()->MinTime(1);

/// A key in a cell that has five thousand lines already.
void typeIntoAFullCell(benchmark::State &state)
{
    constexpr double frame = 0.016;
    constexpr int lines = 5'000;
    WallCalendar calendar = fullCalendar(12);
    QStringList texts;
    for (int i = 0; i < lines; ++i)
        texts.append(u"Line %1"_s.arg(i));
    calendar = CalendarEdits::setCell(calendar, first, texts);
    texts[lines / 2] += u'x';
    Limit limit(state, 1);
    for ([[maybe_unused]] const auto _ : state) {
        limit.referred(frame);
        limit.measure([&] { benchmark::DoNotOptimize(CalendarEdits::setCell(calendar, first, texts)); });
    }
}
BENCHMARK(typeIntoAFullCell)->UseManualTime()->MinTime(1);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    return benchmark::RunSpecifiedBenchmarks() > 0 ? 0 : 1;
}
