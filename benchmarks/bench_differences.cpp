// SPDX-License-Identifier: GPL-3.0-or-later
// The differences between a full address book and a copy of it, beside one read of the files of both.

#include "addressbook/model/addressrecords.h"
#include "addressbook/model/indexline.h"
#include "backup/model/differences.h"
#include "benchmarks/limit.h"
#include "storage/recordvalue.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype lineRecordLength = 60;
constexpr double mostMemory = 16; ///< MiB above what there was before

/// A full address book; each `changedOf`-th entry has another number and each `missingOf`-th is not there,
/// where these are not 0.
class FullBook
{
public:
    FullBook(int changedOf, int missingOf)
    {
        QByteArray entries(addressLayout.size(), '\0');
        QByteArray lines(lineRecordLength, '\0');
        for (int record = AddressBook::firstRecord; record <= AddressBook::lastRecord; ++record) {
            AddressEntry entry;
            entry[LastName] = missingOf > 0 && record % missingOf == 0 ? u"*****"_s : u"Lindqvist"_s;
            entry[FirstName] = u"Elisabeth %1"_s.arg(record);
            entry[HomePhone] = changedOf > 0 && record % changedOf == 0 ? u"555-0199"_s : u"555-0142"_s;
            entry.picture = noPicture;
            entries += addressLayout.encode(entry);
            const QString line = IndexLine::make(entry[LastName], entry[FirstName], record);
            lines += RecordValue::encodeText(line, lineRecordLength)->leftJustified(lineRecordLength, '\0');
        }
        write(u"Addbk1.Fil"_s, entries);
        write(u"Addbk2.Fil"_s, lines);
    }

    const DataFolder &folder() const { return m_folder; }
    void readOnce() const
    {
        static QByteArray block(256 * 1024, '\0');
        for (const QString &name : AddressBook::fileNames()) {
            QFile file(m_dir.filePath(name));
            if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
                qFatal("no address book to be measured");
            while (file.read(block.data(), block.size()) > 0)
                benchmark::ClobberMemory();
        }
    }

private:
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write the address book to be measured");
    }

    QTemporaryDir m_dir;
    DataFolder m_folder{m_dir.path()};
};

/// In MiB, of "VmHWM:" or "VmRSS:"; 0 where the system does not tell.
double memoryNow(const char *name)
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

/// Where nearly all is the same, as it is from one week to the next.
void compareFullBooks(benchmark::State &state)
{
    const FullBook here(0, 0);
    const FullBook there(500, 700);
    Limit limit(state, 4);
    double peak = 0;
    for ([[maybe_unused]] auto round : state) {
        limit.reference([&] {
            here.readOnce();
            there.readOnce();
        });
        if (QFile peaks(u"/proc/self/clear_refs"_s); peaks.open(QIODevice::WriteOnly))
            peaks.write("5"); // the peak counts from here on
        const double before = memoryNow("VmRSS:");
        limit.measure([&] {
            const AddressRecords recordsHere(here.folder());
            const AddressRecords recordsThere(there.folder());
            benchmark::DoNotOptimize(RecordDifferences::of(recordsHere, recordsThere).items.size());
        });
        peak = std::max(peak, memoryNow("VmHWM:") - before);
    }
    state.counters["peak_MiB"] = peak;
    if (peak > mostMemory)
        state.SkipWithError("takes too much memory");
}

BENCHMARK(compareFullBooks)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
