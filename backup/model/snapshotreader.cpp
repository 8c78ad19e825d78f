// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/snapshotreader.h"

#include "backup/model/filehash.h"
#include "backup/model/snapshotlines.h"
#include "backup/model/snapshotrun.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

/// More than a household's record files ever are.
constexpr ArchiveLimits limits{.files = 50'000, .bytes = qint64(8) << 30};

/// Reads a whole file of an archive into memory.
std::optional<QByteArray> contentOf(ArchiveReader &archive, qint64 most)
{
    QByteArray content;
    if (archive.entry().size > most)
        return std::nullopt;
    content.reserve(archive.entry().size);
    const bool isRead = archive.readAll([&content](QByteArrayView bytes) {
        content.append(bytes);
        return true;
    });
    return isRead ? std::optional(content) : std::nullopt;
}

} // namespace

SnapshotReader::SnapshotReader(const QString &path)
    : m_file(path)
{}

bool SnapshotReader::stop(State state)
{
    m_state = state;
    return false;
}

bool SnapshotReader::stopAsOf(const ArchiveReader &archive)
{
    switch (archive.state()) {
    case ArchiveReader::State::NotAvailable:
        return stop(State::NotAvailable);
    case ArchiveReader::State::Refused:
        return stop(State::Refused);
    case ArchiveReader::State::Reading:
    case ArchiveReader::State::Complete:
    case ArchiveReader::State::Damaged:
        break;
    }
    return stop(State::Damaged);
}

/// The list is the archive's last file; those before it, in its order, begin with those of the household.
std::optional<QList<SnapshotFile>> SnapshotReader::files()
{
    m_file.close();
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        stop(State::Damaged);
        return std::nullopt;
    }
    ArchiveReader archive(ArchiveForm::Zip, ArchiveReader::sourceOf(m_file), limits);
    QList<qint64> sizes;
    std::optional<QByteArray> manifest;
    while (!manifest && archive.next()) {
        if (archive.entry().name == SnapshotManifest::fileName)
            manifest = contentOf(archive, SnapshotManifest::mostBytes);
        else if (archive.entry().name.startsWith(SnapshotRun::filesFolder))
            sizes.append(archive.entry().size);
    }
    if (!manifest || archive.next() || archive.state() != ArchiveReader::State::Complete) {
        // Complete without a list, or with more behind it: somebody else's.
        archive.state() == ArchiveReader::State::Complete ? stop(State::Refused) : stopAsOf(archive);
        return std::nullopt;
    }
    auto files = SnapshotManifest::decoded(*manifest);
    bool isTrue = files && files->size() == sizes.size();
    for (qsizetype i = 0; isTrue && i < sizes.size(); ++i)
        isTrue = (*files)[i].size == sizes[i];
    if (!isTrue) {
        stop(State::Refused);
        return std::nullopt;
    }
    m_state = State::Whole;
    return files;
}

bool SnapshotReader::unpack(const QString &into, const std::function<bool(const SnapshotFile &)> &isWanted,
                            const std::atomic_bool &isStopped)
{
    const auto files = this->files();
    if (!files)
        return false;
    qint64 bytes = 0;
    for (const SnapshotFile &file : *files)
        bytes += !isWanted || isWanted(file) ? file.size : 0;
    if (!QDir().mkpath(into) || QStorageInfo(into).bytesAvailable() < bytes)
        return stop(State::NotUnpacked);
    ArchiveReader archive(ArchiveForm::Zip, ArchiveReader::sourceOf(m_file), limits);
    m_damaged.clear();
    for (const SnapshotFile &file : *files) {
        if (!archive.next())
            return stopAsOf(archive);
        if (isWanted && !isWanted(file))
            continue;
        if (!unpackOne(archive, file, into + u'/' + file.name, isStopped))
            return false;
    }
    return m_damaged.isEmpty() || stop(State::Damaged);
}

/// A file that is not as it was is noted, and the others are gone on with; false where that cannot be done.
bool SnapshotReader::unpackOne(ArchiveReader &archive, const SnapshotFile &file, const QString &path,
                               const std::atomic_bool &isStopped)
{
    QFile target(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !target.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return stop(State::NotUnpacked);
    FileHash hash;
    bool isWritten = true;
    const bool isRead = archive.readAll([&](QByteArrayView bytes) {
        hash.add(bytes);
        isWritten = !isStopped && target.write(bytes.data(), bytes.size()) == bytes.size();
        return isWritten;
    });
    if (isStopped || !isWritten) {
        target.remove();
        return stop(isStopped ? State::Stopped : State::NotUnpacked);
    }
    if (!isRead || hash.result() != file.hash) {
        target.remove();
        m_damaged.append(file.name);
        return true;
    }
    target.setFileTime(file.changed, QFileDevice::FileModificationTime);
    return true;
}

QString SnapshotReader::refusal() const
{
    switch (m_state) {
    case State::Refused:
        return SnapshotLines::notOfOurs();
    case State::Damaged:
        return SnapshotLines::damaged();
    case State::NotUnpacked:
        return SnapshotLines::notUnpacked();
    case State::NotAvailable:
        return SnapshotLines::notAvailable();
    case State::Whole:
    case State::Stopped:
        break;
    }
    return {};
}
