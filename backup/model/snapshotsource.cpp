// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/snapshotsource.h"

#include "backup/model/filehash.h"
#include "backup/model/snapshotreader.h"

#include <QFile>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 chunk = 1 << 20;
constexpr qsizetype idLength = 16;

} // namespace

SnapshotSource::SnapshotSource(const Snapshot &snapshot, const std::atomic_bool &isStopped)
{
    SnapshotReader reader(snapshot.path);
    const auto files = reader.files();
    const bool isUnpacked = files && reader.unpack(m_folder.path(), {}, isStopped);
    // What is damaged alone is asked for by its name later.
    if (!isUnpacked && (!files || reader.damaged().isEmpty())) {
        m_refusal = reader.refusal();
        return;
    }
    for (const SnapshotFile &file : *files)
        m_set.files.append(
            {.name = file.name, .size = file.size, .changed = file.changed, .hash = file.hash});
    m_set.set = FileHash::of(snapshot.path.toUtf8()).first(idLength);
    m_set.begun = snapshot.made.toUTC();
    m_set.ended = m_set.begun;
    m_set.drive = u"a snapshot"_s;
}

std::optional<DiskRecord> SnapshotSource::diskAt(const QString &) const
{
    return std::nullopt;
}

RestoreSource::Reading SnapshotSource::read(const QString &, int, Visitor &visitor)
{
    for (const BackupFile &file : m_set.files) {
        BackupPart part;
        part.name = file.name;
        part.size = file.size;
        part.bytes = file.size;
        part.changed = file.changed;
        part.hash = file.hash;
        if (visitor.wants(part) && !readFile(file, visitor))
            return Reading::Stopped;
    }
    return Reading::Done;
}

bool SnapshotSource::readFile(const BackupFile &file, Visitor &visitor) const
{
    QFile from(folder() + u'/' + file.name);
    if (!from.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return visitor.end(false);
    qint64 left = file.size;
    while (left > 0) {
        const QByteArray bytes = from.read(std::min(left, chunk));
        if (bytes.isEmpty())
            return visitor.end(false);
        if (!visitor.take(bytes))
            return false;
        left -= bytes.size();
    }
    return visitor.end(true);
}
