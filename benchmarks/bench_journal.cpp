// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "journal/model/journalfiles.h"
#include "journal/model/journalnews.h"
#include "journal/model/journalsearch.h"
#include "storage/disk.h"
#include "storage/saving.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <malloc.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int firstYear = 1997;
constexpr int lastYear = 2026;
constexpr double frame = 0.016;

const QDate today(lastYear, 11, 23);

class StandingClock final : public Clock
{
public:
    QDateTime now() const override { return QDateTime(::today, QTime(20, 0)); }
};

/// A text of about 1,500 characters: words of which some are frequent and most are rare, in four paragraphs.
QString textOf(QRandomGenerator &random)
{
    static const QStringList frequent =
        u"the and we to a of in was it went with for on day house garden"_s.split(u' ');
    static const QString vowels = u"aeiou\u00e9"_s;
    static const QString others = u"bcdfghklmnprstvw"_s;
    QString text;
    while (text.size() < 1500) {
        QString word;
        if (random.bounded(2) == 0) {
            word = frequent[random.bounded(int(frequent.size()))];
        } else {
            for (int part = random.bounded(1, 4); part > 0; --part) {
                word += others[random.bounded(int(others.size()))];
                const int vowel = random.bounded(60);
                word += vowels[vowel < 1 ? 5 : vowel % 5];
            }
        }
        text += word + (random.bounded(70) == 0 ? u".\n\n"_s : u" "_s);
    }
    return text;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no file");
    return file.readAll();
}

/// Thirty years with an entry every day: 10,957 of them, 16 MB.
class ThirtyYears
{
public:
    explicit ThirtyYears(const QString &place = QDir::tempPath(), int first = firstYear)
        : temporary(place + u"/bench_journal-XXXXXX"_s)
    {
        QRandomGenerator random(4);
        for (int year = first; year <= lastYear; ++year) {
            JournalBlocks blocks;
            for (QDate day(year, 1, 1); day.year() == year; day = day.addDays(1)) {
                JournalEntry entry{
                    .date = day, .written = QDateTime(day, QTime(21, 30)), .text = textOf(random)};
                if (day.day() % 7 == 0)
                    entry.tags = QStringList{u"garden"_s, u"school"_s};
                blocks.push_back(JournalForm::block(entry, JournalBlock::Entry));
            }
            const QByteArray bytes = JournalForm::file(blocks);
            size += bytes.size();
            if (!Disk::writeWhole(folder.filePath(JournalFiles::name(year)), bytes))
                qFatal("cannot write the years");
        }
    }

    qint64 size = 0;
    QTemporaryDir temporary;
    DataFolder folder{temporary.path()};
};

const ThirtyYears &thirtyYears()
{
    static const ThirtyYears years;
    return years;
}

/// A journal of which all years are read and folded.
class OpenJournal
{
public:
    explicit OpenJournal(const DataFolder &folder)
        : journal(folder, clock)
    {
        while (search.step(today.year())) {}
    }

    StandingClock clock;
    Journal journal;
    JournalSearch search{journal};
};

void readAndFoldAllYears(benchmark::State &state)
{
    constexpr double most = 10;
    const ThirtyYears &years = thirtyYears();
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            for (const int year : JournalFiles::years(years.folder))
                benchmark::DoNotOptimize(contentOf(years.folder.filePath(JournalFiles::name(year))));
        });
        limit.measure([&] { benchmark::DoNotOptimize(OpenJournal(years.folder).search.count()); });
    }
}
BENCHMARK(readAndFoldAllYears)->UseManualTime()->MinTime(1);

/// One slice of it, which stands between two frames: a year.
void readAndFoldAYear(benchmark::State &state)
{
    const ThirtyYears &years = thirtyYears();
    Limit limit(state, 1);
    for ([[maybe_unused]] const auto _ : state) {
        limit.referred(frame);
        limit.measure([&] {
            const StandingClock clock;
            Journal journal(years.folder, clock);
            JournalSearch search(journal);
            benchmark::DoNotOptimize(search.step(today.year()));
        });
    }
}
BENCHMARK(readAndFoldAYear)->UseManualTime()->MinTime(1);

/// What is typed, with the hits as they are shown: beside one copy of the bytes that are searched.
void typeAKey(benchmark::State &state, const QString &typed)
{
    constexpr double most = 20;
    OpenJournal open(thirtyYears().folder);
    const QByteArray bytes(thirtyYears().size, 'x');
    QByteArray copy(bytes.size(), 'y');
    Limit limit(state, most);
    double slowest = 0;
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            std::copy(bytes.begin(), bytes.end(), copy.begin());
            benchmark::DoNotOptimize(copy.data());
            benchmark::ClobberMemory();
        });
        open.search.setQuestion({});
        const auto start = std::chrono::steady_clock::now();
        open.search.setQuestion(typed);
        benchmark::DoNotOptimize(open.search.hits());
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        limit.measured(seconds);
        slowest = slowest == 0 ? seconds : std::min(slowest, seconds);
    }
    state.counters["hits"] = open.search.count();
    if (slowest > frame)
        state.SkipWithError("takes longer than a frame");
}
BENCHMARK_CAPTURE(typeAKey, aLetter, u"e"_s)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(typeAKey, twoLetters, u"th"_s)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(typeAKey, twoThatAreNotThere, u"zq"_s)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(typeAKey, twoThatAreRarelyTogether, u"eo"_s)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(typeAKey, aWord, u"ferry"_s)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(typeAKey, wordsInAnyOrder, u"garden we the house"_s)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(typeAKey, aPhrase, u"\"we went to the\""_s)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(typeAKey, anAccent, u"d\u00e9"_s)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(typeAKey, aTag, u"tag:garden"_s)->UseManualTime()->MinTime(1);

/// A word, a letter at a time: beside as many frames.
void typeAWord(benchmark::State &state)
{
    const QString typed = u"the garden"_s;
    OpenJournal open(thirtyYears().folder);
    Limit limit(state, 1);
    for ([[maybe_unused]] const auto _ : state) {
        limit.referred(frame * double(typed.size()));
        open.search.setQuestion({});
        limit.measure([&] {
            for (qsizetype length = 1; length <= typed.size(); ++length) {
                open.search.setQuestion(typed.first(length));
                benchmark::DoNotOptimize(open.search.hits());
            }
        });
    }
}
BENCHMARK(typeAWord)->UseManualTime()->MinTime(1);

void memoryOfAllYears(benchmark::State &state)
{
    constexpr double most = 3;
    const ThirtyYears &years = thirtyYears();
    double used = 0;
    for ([[maybe_unused]] const auto _ : state) {
        malloc_trim(0);
        const struct mallinfo2 before = mallinfo2();
        OpenJournal open(years.folder);
        open.search.setQuestion(u"e"_s);
        const struct mallinfo2 after = mallinfo2();
        used = double(after.uordblks + after.hblkhd) - double(before.uordblks + before.hblkhd);
        benchmark::DoNotOptimize(open.search.count());
    }
    state.counters["MiB"] = used / (1024 * 1024);
    state.counters["ratio"] = used / double(years.size);
    state.counters["limit"] = most;
    if (used > most * double(years.size))
        state.SkipWithError("takes too much memory");
}
BENCHMARK(memoryOfAllYears)->Iterations(3);

/// The autosave in a full year. What counts is the flush, so it is done where the program was started, on a
/// disk.
void saveAFullYear(benchmark::State &state)
{
    constexpr double most = 3;
    const ThirtyYears year(QDir::currentPath(), lastYear);
    const StandingClock clock;
    Journal journal(year.folder, clock);
    JournalEntry entry = *journal.entry(today);
    const QString path = year.folder.filePath(JournalFiles::name(lastYear));
    const QByteArray bytes = contentOf(path);
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        entry.text += u" x"_s;
        limit.reference([&] {
            if (!Disk::writeWhole(path + u".copy"_s, bytes))
                qFatal("cannot write");
        });
        limit.measure([&] {
            if (!journal.put(entry) || !journal.save())
                qFatal("cannot save");
        });
    }
}
BENCHMARK(saveAFullYear)->UseManualTime()->MinTime(3);

/// What the window needs before it is painted, and the card in the evening: beside one read of the year.
template <typename Work>
void besideAYear(benchmark::State &state, Work work)
{
    constexpr double most = 10;
    const ThirtyYears &years = thirtyYears();
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            benchmark::DoNotOptimize(contentOf(years.folder.filePath(JournalFiles::name(lastYear))));
        });
        limit.measure([&] { work(years.folder); });
    }
}
BENCHMARK_CAPTURE(besideAYear, openToday,
                  [](const DataFolder &folder) {
                      const StandingClock clock;
                      Journal journal(folder, clock);
                      benchmark::DoNotOptimize(journal.entry(today));
                      benchmark::DoNotOptimize(journal.dates(today.year()));
                  })
    ->UseManualTime()
    ->MinTime(1);
BENCHMARK_CAPTURE(besideAYear, news,
                  [](const DataFolder &folder) {
                      benchmark::DoNotOptimize(JournalNews::liveLine(folder, QDateTime(today, QTime(9, 0))));
                  })
    ->UseManualTime()
    ->MinTime(1);

} // namespace

BENCHMARK_MAIN();
