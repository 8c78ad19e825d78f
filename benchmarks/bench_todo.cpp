// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "storage/disk.h"
#include "todo/model/activefile.h"
#include "todo/model/comingback.h"
#include "todo/model/todoactions.h"
#include "todo/model/todocounts.h"
#include "todo/model/tododifference.h"
#include "todo/model/todofiles.h"
#include "todo/model/todonews.h"
#include "todo/model/todoviews.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <malloc.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int items = 10'000;
constexpr int openItems = 2'000;
constexpr int lists = 20;

const QDate today(2026, 11, 22);

/// Ten thousand things, of which two thousand are still to do; every fourth has a date, every tenth comes
/// back.
ToDoSheet fullSheet()
{
    ToDoSheet sheet;
    for (int list = 1; list <= lists; ++list)
        sheet.addList({0, ListKind::Plain, u"List %1"_s.arg(list)});
    std::vector<ToDoItem> all;
    for (int i = 0; i < items; ++i) {
        ToDoItem item{.list = i % lists + 1, .created = today.addDays(-i / 10)};
        item.text = u"Clean the filter of the old pump %1"_s.arg(i);
        if (i % 4 == 0)
            item.due = today.addDays(i % 400 - 100);
        if (i % 10 == 0)
            item.repeat = u"month 3 15 after"_s;
        if (i % 3 == 0)
            item.note = u"The key hangs behind the door; ask Jos\u00e9 when it is not there."_s;
        if (i % (items / openItems) != 0)
            item.actual = today.addDays(-i / 20);
        all.push_back(item);
    }
    sheet.addAll(all);
    return sheet;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no file");
    return file.readAll();
}

/// A folder with the files of the full sheet.
class FullFolder
{
public:
    explicit FullFolder(const QString &place = QDir::tempPath())
        : temporary(place + u"/bench_todo-XXXXXX"_s)
    {
        if (!files.save(fullSheet()))
            qFatal("cannot write the lists");
    }

    QString path(const QString &name) const { return folder.filePath(name); }

    QTemporaryDir temporary;
    DataFolder folder{temporary.path()};
    ToDoFiles files{folder};
};

void openFullLists(benchmark::State &state)
{
    constexpr double most = 10;
    const FullFolder full;
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] { benchmark::DoNotOptimize(contentOf(full.path(u"ToDo1.Fil"_s)).split('\n')); });
        limit.measure([&] { benchmark::DoNotOptimize(full.files.open(DateStyle::Usa, today)); });
    }
}
BENCHMARK(openFullLists)->UseManualTime()->MinTime(1);

/// Every file changes: an item is renamed and a list, too. What counts is the flushes, so it is done where
/// the program was started, on a disk.
void saveFullLists(benchmark::State &state)
{
    constexpr double most = 3;
    const FullFolder full(QDir::currentPath());
    ToDoSheet sheet = full.files.read(DateStyle::Usa, today);
    std::vector<std::pair<QString, QByteArray>> contents;
    for (const QString &name : ToDoFiles::names())
        contents.emplace_back(full.path(name) + u".copy"_s, contentOf(full.path(name)));
    int count = 0;
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        sheet = ToDoActions::setText(sheet, 1, u"Text %1"_s.arg(++count)).sheet;
        sheet.setList({1, ListKind::Plain, u"Name %1"_s.arg(count)});
        limit.reference([&] {
            for (const auto &[path, bytes] : contents) {
                if (!Disk::writeWhole(path, bytes))
                    qFatal("cannot write");
            }
        });
        limit.measure([&] {
            if (!full.files.save(sheet))
                qFatal("cannot save");
        });
    }
}
BENCHMARK(saveFullLists)->UseManualTime()->MinTime(3);

/// What the planner asks for on every step.
void tellOfFourteenDays(benchmark::State &state)
{
    constexpr double most = 10;
    const FullFolder full;
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] { benchmark::DoNotOptimize(contentOf(full.path(u"ToDo1.Fil"_s)).split('\n')); });
        limit.measure([&] {
            benchmark::DoNotOptimize(
                ToDoNews::dayNotes(full.folder, DateStyle::Usa, today, today.addDays(13), today));
        });
    }
}
BENCHMARK(tellOfFourteenDays)->UseManualTime()->MinTime(1);

/// Beside a frame: what a tick, a drag and each of them as a step of undo may take at most.
template <typename Act>
void act(benchmark::State &state, Act action)
{
    const ToDoSheet sheet = fullSheet();
    Limit limit(state, 1);
    constexpr double frame = 0.016;
    for ([[maybe_unused]] const auto _ : state) {
        limit.referred(frame);
        limit.measure([&] {
            const ToDoActions::Result result = action(sheet);
            benchmark::DoNotOptimize(ToDoDifference::between(sheet, result.sheet));
        });
    }
}
BENCHMARK_CAPTURE(act, tick,
                  [](const ToDoSheet &sheet) { return ToDoActions::tick(sheet, {5001}, today, today); })
    ->UseManualTime()
    ->MinTime(1);
BENCHMARK_CAPTURE(act, drag, [](const ToDoSheet &sheet) { return ToDoActions::move(sheet, {9981}, 1, 1); })
    ->UseManualTime()
    ->MinTime(1);
BENCHMARK_CAPTURE(act, whatComesLater,
                  [](const ToDoSheet &sheet) {
                      const ComingBack comingBack(sheet, today);
                      int count = 0;
                      for (int row = 0; row < sheet.rowCount(); ++row)
                          count += comingBack.isLater(row) ? 1 : 0;
                      benchmark::DoNotOptimize(count);
                      return ToDoActions::Result{.sheet = sheet, .title = {}, .ids = {}};
                  })
    ->UseManualTime()
    ->MinTime(1);

/// The same for the rows of a view, and the numbers beside the lists.
void show(benchmark::State &state, const Shown &shown)
{
    const ToDoSheet sheet = fullSheet();
    const DateStyle style = DateStyle::Usa;
    Limit limit(state, 1);
    constexpr double frame = 0.016;
    for ([[maybe_unused]] const auto _ : state) {
        limit.referred(frame);
        limit.measure([&] {
            benchmark::DoNotOptimize(
                ToDoViews::rows(sheet, {.shown = shown, .today = today, .style = style}));
            benchmark::DoNotOptimize(ToDoCounts::of(sheet, today));
        });
    }
}
BENCHMARK_CAPTURE(show, aList, Shown{Shown::List, 1, {}})->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(show, done, Shown{Shown::Done, 0, {}})->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(show, aLetter, Shown{Shown::Search, 0, u"e"_s})->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(show, aRareWord, Shown{Shown::Search, 0, u"pump 9876"_s})->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(show, anAccent, Shown{Shown::Search, 0, u"jos\u00e9"_s})->UseManualTime()->MinTime(1);

void memoryOfFullLists(benchmark::State &state)
{
    constexpr double most = 4;
    const FullFolder full;
    const double size = double(QFile(full.path(u"ToDo1.Fil"_s)).size());
    double used = 0;
    for ([[maybe_unused]] const auto _ : state) {
        malloc_trim(0);
        const struct mallinfo2 before = mallinfo2();
        const ToDoFiles::Opened opened = full.files.open(DateStyle::Usa, today);
        const struct mallinfo2 after = mallinfo2();
        used = double(after.uordblks + after.hblkhd) - double(before.uordblks + before.hblkhd);
        benchmark::DoNotOptimize(opened);
    }
    state.counters["MiB"] = used / (1024 * 1024);
    state.counters["ratio"] = used / size;
    state.counters["limit"] = most;
    if (used > most * size)
        state.SkipWithError("takes too much memory");
}
BENCHMARK(memoryOfFullLists)->Iterations(3);

} // namespace

BENCHMARK_MAIN();
