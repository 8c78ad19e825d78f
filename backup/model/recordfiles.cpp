// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/recordfiles.h"

#include "backup/model/setfolder.h"

#include <QFileInfo>

#include <algorithm>
#include <set>
#include <utility>

namespace {

bool isRecordFile(const QString &name)
{
    return !name.contains(u'/') && QFileInfo(name).fileName() == name && !SetFolder::isPicture(name);
}

} // namespace

RecordFiles::RecordFiles(const SetRecord &set, const std::atomic_bool &isStopped, Written written)
    : m_disks(set.disks)
    , m_isStopped(isStopped)
    , m_written(std::move(written))
{
    for (const BackupFile &file : set.files) {
        if (isRecordFile(file.name))
            m_files.insert({file.name, {file}});
    }
}

qint64 RecordFiles::bytes() const
{
    qint64 bytes = 0;
    for (const auto &[name, wanted] : m_files)
        bytes += wanted.file.size;
    return bytes;
}

QList<int> RecordFiles::disks() const
{
    std::set<int> numbers;
    for (const auto &[name, wanted] : m_files) {
        for (int disk = wanted.file.firstDisk; disk <= std::min(wanted.file.lastDisk, m_disks); ++disk)
            numbers.insert(disk);
    }
    QList<int> disks(numbers.begin(), numbers.end());
    if (!disks.isEmpty() && disks.constLast() == m_disks)
        disks.move(disks.size() - 1, 0);
    return disks;
}

void RecordFiles::beginDisk(int number)
{
    if (std::exchange(m_disk, number) != number) {
        m_hasBegun = false;
        m_partsToCome = int(std::ranges::count_if(m_files, [number](const auto &each) {
            const BackupFile &file = each.second.file;
            return file.firstDisk <= number && number <= file.lastDisk;
        }));
    }
    m_partsLeft = m_partsToCome;
}

bool RecordFiles::wants(const BackupPart &part)
{
    const auto found = m_files.find(part.name);
    if (m_isStopped || m_hasFailed || found == m_files.end())
        return false;
    const Wanted &wanted = found->second;
    if (part.size != wanted.file.size || part.offset + part.bytes > part.size ||
        wanted.offsets.contains(part.offset))
        return false;
    m_part = part;
    m_hasBegun = true;
    m_file.setFileName(m_into + u'/' + part.name);
    m_hasFailed = !m_file.open(QIODevice::ReadWrite) || !m_file.seek(part.offset);
    m_hash = FileHash();
    return !m_hasFailed;
}

bool RecordFiles::take(QByteArrayView bytes)
{
    m_hash.add(bytes);
    m_hasFailed = m_hasFailed || m_file.write(bytes.data(), bytes.size()) != bytes.size();
    if (m_written)
        m_written(bytes.size());
    return !m_isStopped && !m_hasFailed;
}

bool RecordFiles::end(bool isWhole)
{
    m_hasFailed = m_hasFailed || !m_file.flush();
    m_file.close();
    if (isWhole && !m_hasFailed && m_hash.result() == m_part.hash) {
        Wanted &wanted = m_files.at(m_part.name);
        wanted.received += m_part.bytes;
        wanted.offsets.insert(m_part.offset);
        --m_partsToCome;
    }
    --m_partsLeft;
    return !m_isStopped && !m_hasFailed && !isDiskDone();
}

/// One that was cut is read once more: its parts are proven, but not that they belong together.
bool RecordFiles::isWhole(const Wanted &wanted) const
{
    if (wanted.offsets.isEmpty() || wanted.received != wanted.file.size)
        return false;
    QFile file(m_into + u'/' + wanted.file.name);
    if (!file.open(QIODevice::ReadOnly) || file.size() != wanted.file.size)
        return false;
    FileHash hash;
    for (QByteArray piece; !m_isStopped && !(piece = file.read(1 << 20)).isEmpty();)
        hash.add(piece);
    return hash.result() == wanted.file.hash;
}

QStringList RecordFiles::finish()
{
    QStringList damaged;
    for (const auto &[name, wanted] : m_files) {
        if (isWhole(wanted))
            continue;
        QFile::remove(m_into + u'/' + name);
        damaged.append(name);
    }
    return damaged;
}
