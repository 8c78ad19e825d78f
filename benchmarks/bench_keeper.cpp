// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "keeper/model/keeper.h"
#include "storage/disk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sodium.h>

#include <array>
#include <cstring>
#include <malloc.h>
#include <map>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int fullCount = 10'000;
constexpr int usualCount = 500;
const QString master = u"correct horse battery staple"_s;

KeyDerivation run(KeyDerivation derivation)
{
    derivation.run();
    return derivation;
}

/// An entry as people have them, with a note on every other one.
KeeperEntry entryOf(int number)
{
    KeeperEntry entry;
    entry.setKind(EntryKind::LogIn);
    entry.setText(KeeperField::Title, u"Power company of the town %1"_s.arg(number));
    entry.setText(KeeperField::UserName, u"anne.miller.%1@example.org"_s.arg(number));
    entry.setText(KeeperField::Password, u"kRp-39x.Vu71-%1"_s.arg(number));
    entry.setText(KeeperField::Address, u"https://www.example.org/customers/log-in?from=%1"_s.arg(number));
    entry.setText(KeeperField::Member, u"Anne"_s);
    entry.setTags({u"house"_s, u"bills"_s});
    if (number % 2 == 0)
        entry.setText(KeeperField::Notes,
                      u"The customer number stands on the bill; ask Jos\u00e9 for the meter behind the door, "
                      u"and write its reading down before the first of March."_s);
    return entry;
}

/// What the list is made of.
qsizetype textOf(const KeeperEntry &entry)
{
    qsizetype size = 0;
    for (const quint8 id : {KeeperField::Title, KeeperField::UserName, KeeperField::Address,
                            KeeperField::Member, KeeperField::Tags, KeeperField::Notes})
        size += entry.text(id).toUtf8().size();
    return size;
}

/// A keeper with `count` entries of two versions, where the program was started: on a disk.
class FullKeeper
{
public:
    explicit FullKeeper(int count)
        : temporary(QDir::currentPath() + u"/bench_keeper-XXXXXX"_s)
    {
        bool isMade = keeper.create(run(keeper.newKey(master)), run(keeper.newKey(u"code"_s)));
        QList<KeeperEntry> entries;
        for (int number = 0; number < count; ++number)
            entries.append(entryOf(number));
        isMade = isMade && keeper.saveAll(entries) && keeper.saveAll(entries);
        if (!isMade)
            qFatal("cannot make a keeper");
        for (const KeeperEntry &entry : std::as_const(entries))
            text += textOf(entry);
    }

    void unlock()
    {
        std::optional<KeeperOpening> opening = keeper.opening(master, KeySlots::Password);
        if (!opening || !opening->run() || !keeper.unlock(std::move(*opening)))
            qFatal("cannot unlock");
    }
    QByteArray bytes() const
    {
        QFile file(folder.filePath(KeeperFiles::entries));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("no file");
        return file.readAll();
    }

    QTemporaryDir temporary;
    DataFolder folder{temporary.path()};
    SystemClock clock;
    PasswordCost cost = PasswordCost::moderate();
    Keeper keeper{folder, clock, cost};
    qsizetype text = 0;
};

/// One of each, since making it takes longer than what is measured.
FullKeeper &keeperOf(int count)
{
    static std::map<int, std::unique_ptr<FullKeeper>> made;
    std::unique_ptr<FullKeeper> &keeper = made[count];
    if (!keeper)
        keeper = std::make_unique<FullKeeper>(count);
    if (keeper->keeper.state() == Keeper::State::Locked)
        keeper->unlock();
    return *keeper;
}

/// Argon2id as it is, at the same cost.
void derive(const PasswordCost &cost)
{
    std::array<unsigned char, 32> key{};
    const std::array<unsigned char, crypto_pwhash_SALTBYTES> salt{};
    if (crypto_pwhash(key.data(), key.size(), "password", 8, salt.data(), cost.operations, cost.memory,
                      crypto_pwhash_ALG_ARGON2ID13) != 0)
        qFatal("no memory");
    benchmark::DoNotOptimize(key);
}

/// One plain pass over the records, which the benchmark has sealed itself.
void openAll(const QByteArray &sealed, qsizetype length, const std::array<unsigned char, 32> &key)
{
    std::array<unsigned char, 2048> open{};
    for (qsizetype at = 0; at + length <= sealed.size(); at += length) {
        const auto *record = reinterpret_cast<const unsigned char *>(sealed.constData()) + at;
        if (crypto_aead_xchacha20poly1305_ietf_decrypt(open.data(), nullptr, nullptr, record + 24,
                                                       quint64(length - 24), nullptr, 0, record,
                                                       key.data()) != 0)
            qFatal("does not open");
        benchmark::DoNotOptimize(open);
    }
}

QByteArray sealedRecords(qsizetype count, qsizetype length, const std::array<unsigned char, 32> &key)
{
    QByteArray sealed(count * length, '\0');
    const std::array<unsigned char, 2008> plain{};
    for (qsizetype at = 0; at < sealed.size(); at += length) {
        auto *record = reinterpret_cast<unsigned char *>(sealed.data()) + at;
        crypto_aead_xchacha20poly1305_ietf_encrypt(record + 24, nullptr, plain.data(), plain.size(), nullptr,
                                                   0, nullptr, record, key.data());
    }
    return sealed;
}

void unlockTenThousand(benchmark::State &state)
{
    constexpr double most = 1.3;
    FullKeeper &full = keeperOf(fullCount);
    constexpr std::array<unsigned char, 32> key{1, 2, 3};
    const QByteArray sealed = sealedRecords(full.bytes().size() / 2048, 2048, key);
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        full.keeper.lock();
        limit.reference([&] {
            derive(full.cost);
            benchmark::DoNotOptimize(full.bytes());
            openAll(sealed, 2048, key);
        });
        limit.measure([&] { full.unlock(); });
    }
}
BENCHMARK(unlockTenThousand)->UseManualTime()->Iterations(5);

/// Argon2id is nine tenths of it at least.
void unlockFiveHundred(benchmark::State &state)
{
    constexpr double most = 1 / 0.9;
    FullKeeper &full = keeperOf(usualCount);
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        full.keeper.lock();
        limit.reference([&] { derive(full.cost); });
        limit.measure([&] { full.unlock(); });
    }
}
BENCHMARK(unlockFiveHundred)->UseManualTime()->Iterations(5);

/// A keystroke, beside one search through the folded text for what is not there.
void search(benchmark::State &state, const QString &typed)
{
    constexpr double most = 5;
    FullKeeper &full = keeperOf(fullCount);
    QByteArray folded;
    for (int number = 0; number < fullCount; ++number) {
        const KeeperEntry entry = entryOf(number);
        for (const quint8 id : {KeeperField::Title, KeeperField::UserName, KeeperField::Address,
                                KeeperField::Tags, KeeperField::Notes})
            folded += entry.text(id).toLower().toUtf8() + '\n';
    }
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            benchmark::DoNotOptimize(memmem(folded.constData(), std::size_t(folded.size()), "qyz", 3));
        });
        limit.measure([&] { benchmark::DoNotOptimize(full.keeper.search(typed)); });
    }
}
BENCHMARK_CAPTURE(search, threeLetters, u"pow"_s)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(search, aRareWord, u"town 9876"_s)->UseManualTime()->MinTime(1);
BENCHMARK_CAPTURE(search, anAccent, u"jos\u00e9"_s)->UseManualTime()->MinTime(1);

/// What counts is the flushes. Each of the two sides needs a quiet moment of the disk, so there are many.
void saveAnEntry(benchmark::State &state)
{
    constexpr double most = 3;
    FullKeeper &full = keeperOf(fullCount);
    const QByteArray id = full.keeper.summary(0).id;
    KeeperEntry entry = full.keeper.entry(id).value_or(KeeperEntry());
    QFile beside(full.folder.path() + u"/beside"_s);
    if (!beside.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        qFatal("cannot write");
    const QByteArray page(4096, 'p');
    int count = 0;
    // As often as there are versions, so that each save measured writes one and frees one.
    for (; count < 2 * Keeper::earlierVersions; ++count) {
        if (!full.keeper.save(entry))
            qFatal("cannot save");
    }
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        entry.setText(KeeperField::Password, u"new-%1"_s.arg(++count));
        limit.reference([&] {
            if (!Disk::writeAt(beside, 0, page) || !Disk::flush(beside))
                qFatal("cannot write");
        });
        limit.measure([&] {
            if (!full.keeper.save(entry))
                qFatal("cannot save");
        });
    }
}
BENCHMARK(saveAnEntry)->UseManualTime()->Iterations(400);

/// What is held while the keeper is open, beside the text that the list is made of.
void memoryOfTenThousand(benchmark::State &state)
{
    constexpr double most = 3;
    FullKeeper &full = keeperOf(fullCount);
    double used = 0;
    for ([[maybe_unused]] const auto _ : state) {
        full.keeper.lock();
        malloc_trim(0);
        const struct mallinfo2 before = mallinfo2();
        full.unlock();
        const struct mallinfo2 after = mallinfo2();
        used = double(after.uordblks + after.hblkhd) - double(before.uordblks + before.hblkhd);
    }
    const auto text = double(full.text);
    state.counters["MiB"] = used / (1024 * 1024);
    state.counters["text_MiB"] = text / (1024 * 1024);
    state.counters["ratio"] = used / text;
    state.counters["limit"] = most;
    if (used > most * text)
        state.SkipWithError("takes too much memory");
}
BENCHMARK(memoryOfTenThousand)->Iterations(3);

} // namespace

BENCHMARK_MAIN();
