// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressviewer.h"
#include "addressbook/model/viewerpages.h"
#include "benchmarks/limit.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int lastRecord = 50000;

/// A data folder whose address book is full: entries with every field filled, and their lines.
class FullBook
{
public:
    FullBook()
    {
        QByteArray entries(addressLayout.size(), '\0'), lines(60, '\0');
        for (int record = 2; record <= lastRecord; ++record) {
            const QByteArray number = QByteArray::number(record);
            entries += entryBytes(number);
            const QByteArray name = "Lindqvist, Anne " + number;
            const QByteArray line = name.leftJustified(47) + number;
            const QByteArray counted = QByteArray(1, char(line.size())) + '\0' + line;
            lines += counted.leftJustified(60, '\0');
        }
        write(u"Addbk1.Fil"_s, entries);
        write(u"Addbk2.Fil"_s, lines);
    }

    const DataFolder &folder() const { return m_folder; }
    QString entriesPath() const { return m_dir.filePath(u"Addbk1.Fil"_s); }

private:
    static QByteArray entryBytes(const QByteArray &number)
    {
        const QByteArrayList texts{"Lindqvist",
                                   "Anne " + number,
                                   "Nov-24-1978",
                                   number + " Orchard Lane",
                                   "Upper Flat",
                                   "Ashford",
                                   "Northland",
                                   "75944",
                                   "(440) 555-" + number,
                                   "(440) 556-" + number,
                                   "",
                                   "anne" + number + "@example.org",
                                   "06/12/2004"};
        QByteArray bytes;
        for (const QByteArray &text : texts)
            bytes += text.leftJustified(40);
        const QByteArray picture = "C:\\QUILLERY\\Pictures\\photo" + number + ".jpg";
        return bytes + picture.leftJustified(204);
    }

    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write the address book to be measured");
    }

    QTemporaryDir m_dir;
    DataFolder m_folder{m_dir.path()};
};

const FullBook &fullBook()
{
    static const FullBook book;
    return book;
}

/// `Addbk1.Fil`, once, into memory.
void readEntries()
{
    QFile file(fullBook().entriesPath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        qFatal("no entries");
    benchmark::DoNotOptimize(file.readAll());
}

void fillGrid(benchmark::State &state, Information information, DisplayRange range)
{
    AddressViewer viewer(fullBook().folder(), DateStyle::Usa);
    Limit limit(state, 3);
    for ([[maybe_unused]] auto round : state) {
        limit.measure([&] { viewer.load(information, range); });
        limit.reference(readEntries);
    }
    state.counters["rows"] = viewer.count();
    state.counters["MiB"] = double(viewer.memoryUsed()) / (1 << 20);
}

void showFirstRows(benchmark::State &state)
{
    AddressViewer viewer(fullBook().folder(), DateStyle::Usa);
    Limit limit(state, 0.2);
    for ([[maybe_unused]] auto round : state) {
        limit.measure([&] { viewer.load(Information::Address, {}, 200); });
        limit.reference(readEntries);
    }
}

/// A search that finds nothing goes through every character.
void search(benchmark::State &state, const QString &text)
{
    constexpr double mostNanoseconds = 30;
    AddressViewer viewer(fullBook().folder(), DateStyle::Usa);
    viewer.load(Information::Address, {});
    qsizetype characters = 0;
    for (int row = 0; row < viewer.count(); ++row)
        characters += viewer.name(row).size() + viewer.information(row).size();
    double least = 1e9;
    for ([[maybe_unused]] auto round : state) {
        const auto start = std::chrono::steady_clock::now();
        viewer.search(text);
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.SetIterationTime(seconds);
        least = std::min(least, seconds / double(characters) * 1e9);
    }
    state.counters["ns_a_character"] = least;
    state.counters["limit"] = mostNanoseconds;
    if (least > mostNanoseconds)
        state.SkipWithError("takes too long for a character");
}

void sortNames(benchmark::State &state)
{
    AddressViewer viewer(fullBook().folder(), DateStyle::Usa);
    viewer.load(Information::Address, {});
    for ([[maybe_unused]] auto round : state) {
        viewer.sort(std::nullopt);
        viewer.sort(AddressViewer::Order{AddressViewer::Column::Information, true});
    }
}

void describeList(benchmark::State &state)
{
    AddressViewer viewer(fullBook().folder(), DateStyle::Usa);
    viewer.load(Information::Address, {});
    ViewerPages::ListOptions options;
    options.hasTelephones = true;
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(ViewerPages::list(viewer, options, {.today = QDate(2026, 11, 21)}));
}

} // namespace

BENCHMARK_CAPTURE(fillGrid, address, Information::Address, DisplayRange())
    ->UseManualTime()
    ->Iterations(60)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fillGrid, state, Information::State, DisplayRange())
    ->UseManualTime()
    ->Iterations(60)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fillGrid, pictures, Information::Pictures, DisplayRange())
    ->UseManualTime()
    ->Iterations(60)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fillGrid, bornInNovember, Information::BirthDate,
                  DisplayRange{DisplayRange::BirthMonth, 11})
    ->UseManualTime()
    ->Iterations(60)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(showFirstRows)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, nothing, u"zeppelin"_s)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, nearlyEverywhere, u"annf"_s)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(sortNames)->Unit(benchmark::kMillisecond);
BENCHMARK(describeList)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
