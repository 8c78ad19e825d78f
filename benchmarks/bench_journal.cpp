// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "benchmarks/thirtyyears.h"
#include "journal/model/journalnews.h"
#include "journal/model/journalsearch.h"
#include "journal/model/sealingwalk.h"

#include <QtEndian>

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <sodium.h>

#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double frame = 0.016;

void sealAll(Journal &journal)
{
    const auto run = [](KeyDerivation derivation) {
        derivation.run();
        return derivation;
    };
    JournalSeal &seal = journal.seal();
    if (!seal.create(run(seal.newKey(u"a password"_s)),
                     run(seal.newCodeKey(u"7HJ4-KM9Q-RST2-VWXY-Z01A-BC3D-EFJN"_s))))
        qFatal("no seal");
    SealingWalk walk(seal);
    while (walk.step()) {}
    journal.reread();
    if (!walk.isComplete())
        qFatal("not sealed");
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
void saveAFullYear(benchmark::State &state, bool isSealed)
{
    constexpr double most = 3;
    const ThirtyYears year(QDir::currentPath(), lastYear);
    const StandingClock clock;
    Journal journal(year.folder, clock, nullptr, PasswordCost::minimum());
    if (isSealed)
        sealAll(journal);
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
// So many at once: a run that is too short to be one is judged by itself, and may be a single save.
BENCHMARK_CAPTURE(saveAFullYear, plain, false)->UseManualTime()->Iterations(300);
BENCHMARK_CAPTURE(saveAFullYear, sealed, true)->UseManualTime()->Iterations(300);

/// All years, plain and sealed, in memory.
class SealedYears
{
public:
    SealedYears()
    {
        for (int year = firstYear; year <= lastYear; ++year) {
            plain.push_back(contentOf(thirtyYears().folder.filePath(JournalFiles::name(year))));
            sealed.push_back(SealedYear::sealed(year, plain.back(), head, key));
        }
    }

    /// What the library itself takes for their records, one behind the other, over the same memory.
    void openBare()
    {
        forEachRecord([this](const unsigned char *record, quint64 length, const QByteArray &context) {
            if (crypto_aead_xchacha20poly1305_ietf_decrypt(
                    m_room.data(), nullptr, nullptr, record + nonceLength, length - nonceLength,
                    bytesOf(context), quint64(context.size()), record, key.bytes()) != 0)
                qFatal("does not open");
        });
    }
    void sealBare()
    {
        forEachRecord([this](const unsigned char *, quint64 length, const QByteArray &context) {
            randombytes_buf(m_room.data(), nonceLength);
            unsigned char *const text = m_room.data() + nonceLength;
            crypto_aead_xchacha20poly1305_ietf_encrypt(
                text, nullptr, text, length - nonceLength - crypto_aead_xchacha20poly1305_ietf_ABYTES,
                bytesOf(context), quint64(context.size()), nullptr, m_room.data(), key.bytes());
        });
    }

    const SecretBytes key = SecretBytes::random(crypto_aead_xchacha20poly1305_ietf_KEYBYTES);
    const QByteArray head = QByteArray(SealedYear::headLength, 'h');
    std::vector<QByteArray> plain;
    std::vector<QByteArray> sealed;

private:
    static constexpr quint64 nonceLength = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;

    static const unsigned char *bytesOf(const QByteArray &bytes)
    {
        return reinterpret_cast<const unsigned char *>(bytes.constData());
    }

    template <typename Visit>
    void forEachRecord(Visit visit)
    {
        int year = firstYear;
        for (const QByteArray &bytes : sealed) {
            m_room.resize(std::size_t(bytes.size()));
            QByteArray context = SealedReader::contextOf(year, "list");
            for (qsizetype at = SealedYear::recordsAt; at < bytes.size();) {
                const auto length = qFromLittleEndian<quint32>(bytes.constData() + at);
                at += SealedReader::lengthBytes;
                visit(bytesOf(bytes) + at, length, context);
                benchmark::DoNotOptimize(m_room.data());
                at += length;
                context = SealedReader::contextOf(year, "entry");
            }
            ++year;
        }
    }

    std::vector<unsigned char> m_room;
};

void unsealAllYears(benchmark::State &state)
{
    constexpr double most = 1.5;
    SealedYears years;
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] { years.openBare(); });
        limit.measure([&] {
            int year = firstYear;
            for (const QByteArray &bytes : years.sealed)
                benchmark::DoNotOptimize(SealedYear(year++, bytes, years.key).plain().constData());
        });
    }
}
BENCHMARK(unsealAllYears)->UseManualTime()->MinTime(2);

void sealAllYears(benchmark::State &state)
{
    constexpr double most = 2;
    SealedYears years;
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] { years.sealBare(); });
        limit.measure([&] {
            int year = firstYear;
            for (const QByteArray &bytes : years.plain)
                benchmark::DoNotOptimize(SealedYear::sealed(year++, bytes, years.head, years.key));
        });
    }
}
BENCHMARK(sealAllYears)->UseManualTime()->MinTime(2);

/// What the window needs before it is painted: beside one read of the year, and of how the others begin, as
/// any of them may be sealed.
void openToday(benchmark::State &state)
{
    constexpr double most = 4;
    const ThirtyYears &years = thirtyYears();
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            for (int year = firstYear; year < lastYear; ++year) {
                QFile file(years.folder.filePath(JournalFiles::name(year)));
                if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
                    qFatal("no file");
                benchmark::DoNotOptimize(file.read(SealedYear::recordsAt));
            }
            benchmark::DoNotOptimize(contentOf(years.folder.filePath(JournalFiles::name(lastYear))));
        });
        limit.measure([&] {
            const StandingClock clock;
            Journal journal(years.folder, clock);
            benchmark::DoNotOptimize(journal.entry(today));
            benchmark::DoNotOptimize(journal.dates(today.year()));
        });
    }
}
BENCHMARK(openToday)->UseManualTime()->MinTime(1);

/// What the card says in the morning: beside one read of the year.
void tellTheNews(benchmark::State &state)
{
    constexpr double most = 10;
    const ThirtyYears &years = thirtyYears();
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            benchmark::DoNotOptimize(contentOf(years.folder.filePath(JournalFiles::name(lastYear))));
        });
        limit.measure([&] {
            benchmark::DoNotOptimize(JournalNews::liveLine(years.folder, QDateTime(today, QTime(9, 0))));
        });
    }
}
BENCHMARK(tellTheNews)->UseManualTime()->MinTime(1);

} // namespace

BENCHMARK_MAIN();
