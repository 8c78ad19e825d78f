// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/snapshotrun.h"

#include "backup/model/archivefile.h"
#include "backup/model/diskrecords.h"
#include "backup/model/filehash.h"
#include "backup/model/readablecopy.h"
#include "backup/model/setfolder.h"
#include "backup/model/snapshotlines.h"
#include "backup/model/snapshotreader.h"
#include "backup/model/snapshots.h"
#include "backup/model/storednames.h"
#include "storage/disk.h"
#include "storage/saving.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 pieceLength = 64 << 10;
/// So often all files are read when one of them is written meanwhile.
constexpr int attempts = 3;

/// What a file is like: when it is written to, this changes.
struct Stamp {
    qint64 size = -1;
    QDateTime changed;
    bool operator==(const Stamp &) const = default;
};

Stamp stampOf(const BackupItem &item)
{
    if (item.path.isEmpty())
        return {item.content.size(), item.changed};
    const QFileInfo file(item.path);
    return file.isFile() ? Stamp{file.size(), file.lastModified().toUTC()} : Stamp();
}

QByteArray hashOf(const QString &path)
{
    QFile file(path);
    FileHash hash;
    QByteArray piece(pieceLength, Qt::Uninitialized);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    for (qint64 got = 0; (got = file.read(piece.data(), piece.size())) > 0;)
        hash.add(QByteArrayView(piece).first(got));
    return hash.result();
}

/// What has a new time, but the bytes that it had, has not changed.
bool isSame(const BackupItem &item, const SnapshotFile &former)
{
    const Stamp stamp = stampOf(item);
    return stamp.size == former.size && (stamp.changed == former.changed || hashOf(item.path) == former.hash);
}

} // namespace

/// One pass over all files, into a file that does not bear its name yet.
class SnapshotRun::Attempt
{
public:
    enum class Result { Done, Changing, NotRead, NotWritten, Stopped };

    Attempt(const SnapshotJob &job, const QList<BackupItem> &items, const std::atomic_bool &isStopped,
            const QString &path)
        : m_job(job)
        , m_items(items)
        , m_isStopped(isStopped)
        , m_file(path + Saving::partSuffix)
        , m_writer(ArchiveForm::Zip, [this](QByteArrayView bytes) { return put(bytes); })
    {}

    Result run()
    {
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
            return Result::NotWritten;
        const Result result = addAll();
        m_file.close();
        return result;
    }

    QString partPath() const { return m_file.fileName(); }
    /// The file that it failed with.
    const QString &name() const { return m_name; }

private:
    bool put(QByteArrayView bytes)
    {
        const bool isPut = Disk::writeAt(m_file, m_at, bytes);
        m_at += bytes.size();
        return isPut;
    }

    Result addAll()
    {
        std::vector<Stamp> stamps;
        for (const BackupItem &item : m_items) {
            m_name = item.name;
            stamps.push_back(stampOf(item));
            const Result result = add(item, stamps.back());
            if (result != Result::Done)
                return result;
        }
        for (const SnapshotFunction &function : m_job.functions) {
            if (!addCopy(function))
                return m_isStopped ? Result::Stopped : Result::NotWritten;
        }
        // A file that was written to meanwhile may not be of the same moment as those before it.
        for (std::size_t i = 0; i < stamps.size(); ++i) {
            m_name = m_items[qsizetype(i)].name;
            if (stampOf(m_items[qsizetype(i)]) != stamps[i])
                return Result::Changing;
        }
        const QByteArray manifest = SnapshotManifest::encoded(m_files);
        const bool isWritten =
            m_writer.add({SnapshotManifest::fileName, manifest.size(), m_job.now.toUTC()}, manifest) &&
            m_writer.finish() && Disk::flush(m_file);
        return isWritten ? Result::Done : Result::NotWritten;
    }

    Result add(const BackupItem &item, const Stamp &stamp)
    {
        QFile file(item.path);
        if (stamp.size < 0 ||
            (!item.path.isEmpty() && !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)))
            return Result::NotRead;
        if (!m_writer.begin(
                {SnapshotRun::filesFolder + m_names.add(item.name, 0), stamp.size, stamp.changed}))
            return Result::NotWritten;
        FileHash hash;
        QByteArray piece = item.path.isEmpty() ? item.content : QByteArray(pieceLength, Qt::Uninitialized);
        for (qint64 left = stamp.size; left > 0 && !m_isStopped;) {
            const qint64 got =
                item.path.isEmpty() ? left : file.read(piece.data(), std::min<qint64>(left, piece.size()));
            if (got <= 0)
                return got < 0 ? Result::NotRead : Result::Changing;
            const QByteArrayView bytes = QByteArrayView(piece).first(got);
            hash.add(bytes);
            if (!m_writer.write(bytes))
                return Result::NotWritten;
            left -= got;
        }
        m_files.append({item.name, stamp.size, stamp.changed, hash.result(), item.function, keptAs(item)});
        return m_isStopped ? Result::Stopped : Result::Done;
    }

    KeptAs keptAs(const BackupItem &item) const
    {
        const auto found = std::ranges::find(m_job.functions, item.function, &SnapshotFunction::function);
        return found == m_job.functions.end() ? KeptAs::Readable : found->keptAs;
    }

    bool addCopy(const SnapshotFunction &function)
    {
        if (!function.records || function.keptAs != KeptAs::Readable)
            return true;
        const QString name = SnapshotRun::copiesFolder + function.function + u".csv";
        return m_writer.begin({name, ArchiveWriter::unknownSize, m_job.now.toUTC()}) &&
               ReadableCopy::write(*function.records, [this](QByteArrayView bytes) {
                   return !m_isStopped && m_writer.write(bytes);
               });
    }

    const SnapshotJob &m_job;
    const QList<BackupItem> &m_items;
    const std::atomic_bool &m_isStopped;
    QFile m_file;
    qint64 m_at = 0;
    ArchiveWriter m_writer;
    StoredNames m_names;
    QList<SnapshotFile> m_files;
    QString m_name;
};

SnapshotRun::SnapshotRun(SnapshotJob job)
    : m_job(std::move(job))
{}

void SnapshotRun::findItems()
{
    m_items = m_job.items();
    const QString own = QDir::cleanPath(m_job.folder) + u'/';
    const auto isLeft = [&](const BackupItem &item) {
        if (!DiskRecords::isSafe(item.name))
            m_leftOut.append(item.name);
        return SetFolder::isPicture(item.name) || !DiskRecords::isSafe(item.name) ||
               item.path.startsWith(own);
    };
    m_items.removeIf(isLeft);
    for (BackupItem &item : m_items) {
        if (item.path.isEmpty() && !item.changed.isValid())
            item.changed = m_job.now.toUTC();
    }
}

bool SnapshotRun::isDue() const
{
    const auto isOfFunction = [](const BackupItem &item) {
        return item.function != Holdings::settings && item.function != Holdings::password &&
               item.function != Holdings::others;
    };
    if (std::ranges::none_of(m_items, isOfFunction))
        return false;
    const QList<Snapshot> snapshots = Snapshots::in(m_job.folder);
    if (snapshots.isEmpty())
        return true;
    if (snapshots.first().made.date() >= m_job.now.date())
        return false;
    const auto former = SnapshotReader(snapshots.first().path).files();
    if (!former)
        return true;
    QHash<QString, SnapshotFile> formers;
    for (const SnapshotFile &file : *former)
        formers.insert(file.name, file);
    qsizetype seen = 0;
    for (const BackupItem &item : m_items) {
        const auto found = formers.constFind(item.name);
        // Of what is no file, the places of windows, nobody needs a new snapshot.
        if (found == formers.cend() || (!item.path.isEmpty() && !isSame(item, *found)))
            return true;
        ++seen;
    }
    return seen != formers.size();
}

SnapshotReport SnapshotRun::refused(SnapshotReport::End end, const QString &refusal) const
{
    return {.end = end, .refusal = refusal, .leftOut = m_leftOut};
}

/// A part that a crash left behind, and what is not kept any longer.
void SnapshotRun::makeRoom() const
{
    QDir folder(m_job.folder);
    for (const QString &part : folder.entryList({u"*.zip"_s + Saving::partSuffix}, QDir::Files))
        folder.remove(part);
    const QList<Snapshot> snapshots = Snapshots::in(m_job.folder);
    for (const Snapshot &snapshot : Snapshots::outdated(snapshots, m_job.now.date(), m_job.limit)) {
        if (!Snapshots::remove(snapshot))
            return; // the log has it; the next time then
    }
}

SnapshotReport SnapshotRun::run()
{
    using End = SnapshotReport::End;
    if (!ArchiveWriter::isAvailable())
        return refused(End::NotMade, SnapshotLines::notAvailable());
    findItems();
    if (m_job.isDaily && !isDue())
        return refused(End::NotDue, {});
    if (!QDir().mkpath(m_job.folder))
        return refused(End::NotMade, SnapshotLines::notWritten(m_job.folder));
    const QString path = Snapshots::pathFor(m_job.folder, m_job.now);
    QString changing;
    for (int i = 0; i < attempts; ++i) {
        Attempt attempt(m_job, m_items, m_isStopped, path);
        const Attempt::Result result = attempt.run();
        if (result == Attempt::Result::Done && Disk::renameOver(attempt.partPath(), path)) {
            Disk::flushNames(m_job.folder);
            makeRoom();
            return {.end = End::Made, .path = path, .leftOut = m_leftOut};
        }
        if (!Disk::remove(attempt.partPath()))
            return refused(End::NotMade, SnapshotLines::notWritten(m_job.folder));
        changing = attempt.name();
        if (result == Attempt::Result::Stopped)
            return refused(End::Stopped, SnapshotLines::stopped());
        if (result == Attempt::Result::NotRead)
            return refused(End::NotMade, SnapshotLines::notRead(changing));
        if (result != Attempt::Result::Changing)
            return refused(End::NotMade, SnapshotLines::notWritten(m_job.folder));
    }
    return refused(End::NotMade, SnapshotLines::alwaysChanging(changing));
}
