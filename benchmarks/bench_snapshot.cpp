// SPDX-License-Identifier: GPL-3.0-or-later
// A snapshot of a full household, with its table of 50,000 addresses, beside one pass of the library for
// archives over the same files.

#include "addressbook/model/addressbook.h"
#include "addressbook/model/addressrecords.h"
#include "backup/model/snapshotrun.h"
#include "benchmarks/limit.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <archive.h>
#include <archive_entry.h>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int years = 30;
constexpr qsizetype yearBytes = 431 * 1400; ///< of a planner with something on each day
constexpr qsizetype pieceLength = 64 << 10;

/// Some words in a row, as people write them.
QString words(QRandomGenerator &random, int count)
{
    static const std::array all{u"call"_s,  u"Anne"_s,   u"dentist"_s,  u"at"_s,       u"school"_s,
                                u"about"_s, u"the"_s,    u"garden"_s,   u"birthday"_s, u"Köln"_s,
                                u"bring"_s, u"ticket"_s, u"555-0142"_s, u"tyres"_s,    u"Zoë"_s};
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(all[random.bounded(quint32(all.size()))] +
                     (i % 4 == 0 ? QString::number(random.bounded(100)) : QString()));
    return texts.join(u' ');
}

class Household
{
public:
    Household()
    {
        QRandomGenerator random(7);
        QByteArray entries(addressLayout.size(), '\0');
        for (int record = AddressBook::firstRecord; record <= AddressBook::lastRecord; ++record) {
            AddressEntry entry;
            entry[LastName] = words(random, 2);
            entry[FirstName] = words(random, 1) + u' ' + QString::number(record);
            entry[City] = words(random, 1);
            entry[HomePhone] = u"555-%1"_s.arg(random.bounded(10'000));
            entry.picture = QString();
            entries += addressLayout.encode(entry);
        }
        write(u"Addbk1.Fil"_s, entries);
        for (int year = 0; year < years; ++year) {
            QByteArray days;
            while (days.size() < yearBytes)
                days += words(random, 9).toLatin1().leftJustified(100, ' ', true);
            write(u" %1.Cal"_s.arg(2000 + year), days);
        }
    }

    const DataFolder &folder() const { return m_folder; }
    QString path(const QString &name) const { return m_dir.filePath(name); }

    SnapshotReport snapshot()
    {
        SnapshotJob job;
        job.folder = path(u"Snapshots"_s);
        job.items = [this] {
            return Holdings::of(m_folder, {{u"AddressBook"_s, {u"Addbk1.Fil"_s}, {}}}, {}).items;
        };
        job.functions = {{u"AddressBook"_s, KeptAs::Readable, std::make_shared<AddressRecords>(m_folder)}};
        job.now = QDateTime({2026, 11, 23}, {8, 0});
        return SnapshotRun(job).run();
    }

    /// The least that any program has to do for such a ZIP, as the library does it by itself.
    void pack() const
    {
        archive *const zip = archive_write_new();
        archive_write_set_format_zip(zip);
        archive_entry *const entry = archive_entry_new();
        if (archive_write_open_filename(zip, QFile::encodeName(path(u"Snapshots/packed"_s)).constData()) !=
            ARCHIVE_OK)
            qFatal("cannot write");
        const QDir dir(m_dir.path());
        QByteArray piece(pieceLength, Qt::Uninitialized);
        for (const QString &name : dir.entryList(QDir::Files)) {
            QFile file(dir.filePath(name));
            if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
                qFatal("cannot read");
            archive_entry_clear(entry);
            archive_entry_set_pathname(entry, QFile::encodeName(name).constData());
            archive_entry_set_filetype(entry, AE_IFREG);
            archive_entry_set_perm(entry, 0644);
            archive_entry_set_size(entry, file.size());
            archive_write_header(zip, entry);
            for (qint64 got = 0; (got = file.read(piece.data(), piece.size())) > 0;)
                archive_write_data(zip, piece.constData(), std::size_t(got));
        }
        archive_entry_free(entry);
        if (archive_write_close(zip) != ARCHIVE_OK)
            qFatal("cannot end");
        archive_write_free(zip);
    }

private:
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write the household to be measured");
    }

    QTemporaryDir m_dir;
    DataFolder m_folder{m_dir.path()};
};

double memoryNow(const char *name)
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n'))
        if (line.startsWith(name))
            return line.mid(6).trimmed().split(' ').constFirst().toDouble() / 1024;
    return 0;
}

void snapshot(benchmark::State &state)
{
    Household household;
    const QString snapshots = household.path(u"Snapshots"_s);
    Limit limit(state, 1.5);
    for ([[maybe_unused]] auto round : state) {
        QDir().mkpath(snapshots);
        limit.reference([&] { household.pack(); });
        QDir(snapshots).removeRecursively();
        if (QFile refs(u"/proc/self/clear_refs"_s); refs.open(QIODevice::WriteOnly))
            refs.write("5");
        const double before = memoryNow("VmRSS:");
        limit.measure([&] {
            if (household.snapshot().end != SnapshotReport::End::Made)
                qFatal("no snapshot was made");
        });
        state.counters["peak_MiB"] = memoryNow("VmHWM:") - before;
    }
}

BENCHMARK(snapshot)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
