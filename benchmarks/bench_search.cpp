// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addresssearch.h"
#include "addressbook/model/indexline.h"
#include "benchmarks/limit.h"
#include "planner/model/dayrecord.h"
#include "planner/model/plannersource.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int entryCount = 50000;
constexpr int firstYear = 2000;
constexpr int yearCount = 30;
constexpr int hitsPerFunction = 100;
const QDate thisDay(2026, 11, 21);

class StillClock final : public Clock
{
public:
    QDateTime now() const override { return QDateTime(thisDay, QTime(10, 24)); }
};

/// A full book: invented names of syllables, each with an address, numbers and mail.
void fillBook(const DataFolder &folder)
{
    constexpr std::array<std::string_view, 16> syllables{"jo", "se", "phi", "ne", "an",  "ber", "lin", "dor",
                                                         "ma", "re", "au",  "ka", "rin", "tes", "sa",  "hol"};
    const auto name = [&](int number, int length) -> QString {
        QString text;
        for (int i = 0; i < length; ++i, number = number * 7 / 3 + 11)
            text += QString::fromLatin1(syllables[std::size_t(number) % syllables.size()]);
        return text.left(1).toUpper() + text.mid(1);
    };
    QFile entries(folder.filePath(u"Addbk1.Fil"_s));
    QFile lines(folder.filePath(u"Addbk2.Fil"_s));
    if (!entries.open(QIODevice::WriteOnly) || !lines.open(QIODevice::WriteOnly))
        qFatal("cannot fill a book");
    entries.write(QByteArray(addressLayout.size(), '\0'));
    lines.write(QByteArray(60, '\0'));
    for (int record = 2; record < entryCount + 2; ++record) {
        AddressEntry entry;
        entry[LastName] = name(record, 3);
        entry[FirstName] = name(record * 5, 2);
        entry[BirthDate] = u"May-%1-19%2"_s.arg(record % 28 + 1).arg(record % 90 + 10);
        entry[Address1] = u"%1 %2 Lane"_s.arg(record % 300).arg(name(record * 3, 4));
        entry[City] = name(record / 100, 3);
        entry[State] = u"England"_s;
        entry[PostalCode] = QString::number(10000 + record);
        entry[HomePhone] = u"555-%1"_s.arg(record);
        entry[Email] = entry[FirstName].toLower() + u'@' + entry[LastName].toLower() + u".example"_s;
        entries.write(addressLayout.encode(entry));
        const QByteArray line = IndexLine::make(entry[LastName], entry[FirstName], record).toLatin1();
        lines.write(QByteArray(1, char(line.size())) + '\0' + line.leftJustified(58));
    }
}

void fillYears(const DataFolder &folder)
{
    for (int year = firstYear; year < firstYear + yearCount; ++year) {
        QFile file(folder.filePath(DayRecord::yearFileName(year)));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot fill a year");
        for (int number = 1; number <= DayRecord::last; ++number) {
            PlannerDay day;
            day.mark = PlannerDay::savedMark;
            for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
                day.times[row] = u"%1:30 PM"_s.arg(row % 9 + 1);
                day.texts[row] = u"Appointment %1 with the gardener's cousin, no. %2"_s.arg(row).arg(number);
            }
            file.write(plannerDayLayout.encode(day) + QByteArray(50, ' '));
        }
    }
}

/// A household of full size, read once for all benchmarks.
struct Household {
    Household()
        : folder(temporary.path())
        , people(folder)
        , appointments(folder, clock, DateStyle::Usa)
    {
        fillBook(folder);
        fillYears(folder);
        while (people.prepare()) {}
        while (appointments.prepare()) {}
    }

    QTemporaryDir temporary;
    DataFolder folder;
    StillClock clock;
    AddressSearch people;
    PlannerSource appointments;
};

Household &household()
{
    static Household full;
    return full;
}

/// The texts that hold `word`, as a plain walk with memmem counts them.
int countedByMemmem(const TextIndex &texts, QByteArrayView word)
{
    int count = 0;
    const char *const end = texts.bytes().data() + texts.bytes().size();
    const char *at = texts.bytes().data();
    while (const void *found = memmem(at, std::size_t(end - at), word.data(), std::size_t(word.size()))) {
        ++count;
        at = static_cast<const char *>(found) + 1;
    }
    return count;
}

/// One key typed: the hits of both functions. A word that stands nowhere has all texts looked through.
void answerAKey(benchmark::State &state, const QString &text)
{
    Household &full = household();
    const QByteArray word = text.toLatin1();
    Limit limit(state, 5);
    for ([[maybe_unused]] auto round : state) {
        limit.measure([&] {
            benchmark::DoNotOptimize(full.people.matches(text, hitsPerFunction));
            benchmark::DoNotOptimize(full.appointments.matches(text, hitsPerFunction));
        });
        limit.reference([&] {
            benchmark::DoNotOptimize(countedByMemmem(full.people.texts(), word));
            for (int year = firstYear; year < firstYear + yearCount; ++year)
                benchmark::DoNotOptimize(countedByMemmem(full.appointments.texts(year), word));
        });
    }
    state.counters["MiB"] = double(full.people.memoryUsed() + full.appointments.memoryUsed()) / (1024 * 1024);
}

void readEverything(benchmark::State &state)
{
    Household &full = household();
    for ([[maybe_unused]] auto round : state) {
        AddressSearch people(full.folder);
        PlannerSource appointments(full.folder, full.clock, DateStyle::Usa);
        while (people.prepare()) {}
        while (appointments.prepare()) {}
    }
}

} // namespace

#define ANSWER(name, text)                                                                                   \
    BENCHMARK_CAPTURE(answerAKey, name, text)->UseManualTime()->Iterations(50)->Unit(benchmark::kMillisecond)
ANSWER(oneLetter, u"j"_s);
ANSWER(commonSyllable, u"jo"_s);
ANSWER(threeLetters, u"jos"_s);
ANSWER(rareWord, u"zylophone"_s);
ANSWER(everywhere, u"gardener"_s);
ANSWER(aNumber, u"5550142"_s);
BENCHMARK(readEverything)->Iterations(5)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
