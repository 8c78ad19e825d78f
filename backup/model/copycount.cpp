// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/copycount.h"

#include "backup/model/setfolder.h"
#include "backup/model/storednames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {

/// No file of records comes near to this.
constexpr qint64 largest = qint64(128) * 1024 * 1024;

} // namespace

CopyCount::CopyCount(Count count)
    : m_count(std::move(count))
{}

void CopyCount::add(const QString &name, const QString &path)
{
    if (!m_count || SetFolder::isPicture(name) || QFileInfo(path).size() > largest)
        return;
    if (!m_folder)
        m_folder = std::make_unique<QTemporaryDir>();
    const QString copy = m_folder->filePath(name);
    if (QDir().mkpath(QFileInfo(copy).path()))
        QFile::copy(path, copy);
}

void CopyCount::addDisk(const QString &folder, const QList<BackupPart> &parts)
{
    StoredNames names;
    for (const BackupPart &part : parts) {
        if (part.piece == 0 && SetFolder::isPicture(part.name))
            continue;
        const QString stored = names.add(part.name, part.piece);
        if (part.piece == 0)
            add(part.name, folder + u'/' + stored);
    }
}

bool CopyCount::addSame(const QString &path, const BackupFile &copied, FileCopier &copier)
{
    if (!m_count || SetFolder::isPicture(copied.name))
        return true;
    QByteArray hash;
    if (copier.hash({path, {}, 0, copied.size}, hash) != FileCopier::Result::Done || hash != copied.hash)
        return false;
    add(copied.name, path);
    return true;
}
