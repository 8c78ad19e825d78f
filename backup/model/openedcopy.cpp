// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/openedcopy.h"

#include "backup/model/filehash.h"
#include "backup/model/setsource.h"
#include "backup/model/snapshotreader.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Writes the files of the household's folder, which are no pictures, into another folder.
class RecordFiles final : public RestoreSource::Visitor
{
public:
    RecordFiles(QString into, const std::atomic_bool &isStopped)
        : m_into(std::move(into))
        , m_isStopped(isStopped)
    {}

    bool wants(const BackupPart &part) override
    {
        const bool isWhole = part.offset == 0 && part.bytes == part.size;
        if (m_isStopped || part.name.contains(u'/') || QFileInfo(part.name).fileName() != part.name ||
            !isWhole)
            return false;
        m_part = part;
        m_file.setFileName(m_into + u'/' + part.name);
        m_isWritten = m_file.open(QIODevice::WriteOnly);
        return true;
    }
    bool take(QByteArrayView bytes) override
    {
        m_hash.add(bytes);
        m_isWritten = m_isWritten && m_file.write(bytes.data(), bytes.size()) == bytes.size();
        return !m_isStopped;
    }
    bool end(bool isWhole) override
    {
        m_file.close();
        if (m_hash.result() != m_part.hash || !isWhole || !m_isWritten) {
            m_file.remove();
            m_damaged.append(m_part.name);
        }
        return !m_isStopped;
    }

    const QStringList &damaged() const { return m_damaged; }

private:
    QString m_into;
    const std::atomic_bool &m_isStopped;
    BackupPart m_part;
    QFile m_file;
    FileHash m_hash;
    bool m_isWritten = false;
    QStringList m_damaged;
};

} // namespace

OpenedCopy OpenedCopy::ofSnapshot(const QString &path, const QString &into, const std::atomic_bool &isStopped)
{
    OpenedCopy opened;
    SnapshotReader reader(path);
    const auto note = [&opened](const SnapshotFile &file) {
        opened.functions.insert(file.function);
        return true;
    };
    if (!reader.unpack(into, note, isStopped) && reader.state() != SnapshotReader::State::Damaged)
        opened.functions.clear();
    opened.refusal = reader.refusal();
    return opened;
}

bool OpenedCopy::isPossible(const BackupSet &set)
{
    return set.isComplete() && !set.isSealed() && set.record->disks == 1;
}

OpenedCopy OpenedCopy::ofSet(const BackupSet &set, const QString &into, const std::atomic_bool &isStopped)
{
    OpenedCopy opened;
    if (!isPossible(set))
        return opened;
    RecordFiles files(into, isStopped);
    SetSource source(set.disk.set, set.begun());
    if (source.read(set.drive, 1, files) != RestoreSource::Reading::Done) {
        opened.refusal = u"The backup is not there any more, or cannot be read"_s;
        return opened;
    }
    for (const BackupCount &count : set.record->counts)
        opened.functions.insert(count.function);
    if (!files.damaged().isEmpty())
        opened.refusal = u"Damaged there, and left out: "_s + files.damaged().join(u", "_s);
    return opened;
}
