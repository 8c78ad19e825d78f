// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressbook.h"
#include "addressbook/model/addressnews.h"
#include "addressbook/model/indexline.h"
#include "benchmarks/limit.h"
#include "storage/recordvalue.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype lineRecordLength = 60;

AddressEntry person(int number)
{
    static const std::array lastNames{u"Achterberg"_s, u"Lind"_s, u"Quill"_s, u"Lindqvist-Rosenbaum"_s,
                                      u"Müller"_s};
    static const std::array firstNames{u"Pieter"_s, u"Anne"_s, u"Zoë"_s, u"Elisabeth"_s};
    static const std::array months{u"Jan"_s, u"Apr"_s, u"Jul"_s, u"Oct"_s};
    AddressEntry entry;
    entry[LastName] = lastNames[std::size_t(number) % lastNames.size()];
    entry[FirstName] = firstNames[std::size_t(number) % firstNames.size()] + u' ' + QString::number(number);
    entry[BirthDate] = months[std::size_t(number) % months.size()] +
                       u"-%1-%2"_s.arg(1 + number % 28).arg(1920 + number % 90);
    entry[City] = u"Ashford"_s;
    entry[HomePhone] = u"555-0142"_s;
    entry.picture = noPicture;
    return entry;
}

/// A data folder whose address book is full.
class FullBook
{
public:
    FullBook()
    {
        QByteArray entries(addressLayout.size(), '\0');
        QByteArray lines(lineRecordLength, '\0');
        for (int record = AddressBook::firstRecord; record <= AddressBook::lastRecord; ++record) {
            const AddressEntry entry = person(record);
            entries += addressLayout.encode(entry);
            const QString line = IndexLine::make(entry[LastName], entry[FirstName], record);
            lines += RecordValue::encodeText(line, lineRecordLength)->leftJustified(lineRecordLength, '\0');
        }
        write(u"Addbk1.Fil"_s, entries);
        write(u"Addbk2.Fil"_s, lines);
    }

    const DataFolder &folder() const { return m_folder; }
    QString path(const QString &name) const { return m_dir.filePath(name); }
    AddressBook book() const { return AddressBook(m_folder); }

private:
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
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

void readIndexAndCut()
{
    QFile file(fullBook().path(u"Addbk2.Fil"_s));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        qFatal("no index file");
    const QByteArray whole = file.readAll();
    std::vector<QByteArrayView> records;
    for (qsizetype at = 0; at < whole.size(); at += lineRecordLength)
        records.push_back(QByteArrayView(whole).sliced(at, std::min(lineRecordLength, whole.size() - at)));
    benchmark::DoNotOptimize(records.data());
}

void readEntriesOnce()
{
    static QByteArray block(256 * 1024, '\0');
    QFile file(fullBook().path(u"Addbk1.Fil"_s));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        qFatal("no file of entries");
    while (file.read(block.data(), block.size()) > 0)
        benchmark::ClobberMemory();
}

void loadNames(benchmark::State &state)
{
    const AddressBook book = fullBook().book();
    Limit limit(state, 4);
    for ([[maybe_unused]] auto round : state) {
        limit.measure([&book] { benchmark::DoNotOptimize(book.loadNames().count()); });
        limit.reference(readIndexAndCut);
    }
}

void saveIntoFullBook(benchmark::State &state)
{
    AddressBook book = fullBook().book();
    const AddressEntry entry = person(1);
    Limit limit(state, 2);
    for ([[maybe_unused]] auto round : state) {
        int record = 0;
        limit.measure([&] { record = book.saveNew(entry).record; });
        limit.reference(readEntriesOnce);
        // The last place is free again for the next round.
        if (!book.remove(record, QDateTime::currentDateTime()))
            state.SkipWithError("The entry could not be removed");
    }
}

void readNews(benchmark::State &state)
{
    const QDate today(2026, 11, 21);
    Limit limit(state, 15);
    for ([[maybe_unused]] auto round : state) {
        limit.measure([today] {
            benchmark::DoNotOptimize(AddressNews::liveLine(fullBook().folder(), DateStyle::Usa, today));
        });
        limit.reference(readEntriesOnce);
    }
}

/// Reports `value` beside the most that it may be.
void compare(benchmark::State &state, double value, double most)
{
    state.counters["ratio"] = value;
    state.counters["limit"] = most;
    if (value > most)
        state.SkipWithError(("takes " + std::to_string(value)).c_str());
}

/// In nanoseconds for a character of the list.
void searchWithoutHit(benchmark::State &state)
{
    const NameList names = fullBook().book().loadNames();
    double best = std::numeric_limits<double>::max();
    for ([[maybe_unused]] auto round : state) {
        const auto start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(names.find(u"lindqvist-rosenbaum, zoë 1x"));
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(time.count());
        best = std::min(best, time.count());
    }
    compare(state, best * 1e9 / double(names.textLength()), 30);
}

/// In bytes for a character of the list.
void memoryOfNames(benchmark::State &state)
{
    const NameList names = fullBook().book().loadNames();
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(names.memoryUsed());
    compare(state, double(names.memoryUsed()) / double(names.textLength()), 3);
}

} // namespace

BENCHMARK(loadNames)->UseManualTime()->Iterations(300)->Unit(benchmark::kMillisecond);
BENCHMARK(saveIntoFullBook)->UseManualTime()->Iterations(60)->Unit(benchmark::kMillisecond);
BENCHMARK(readNews)->UseManualTime()->Iterations(60)->Unit(benchmark::kMillisecond);
BENCHMARK(searchWithoutHit)->UseManualTime()->Iterations(100)->Unit(benchmark::kMillisecond);
BENCHMARK(memoryOfNames)->Iterations(1);

BENCHMARK_MAIN();
