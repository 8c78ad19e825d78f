// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/privatefolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString prefix = u"quillery-copy-"_s;

/// Room that stays free beside what is put there.
constexpr qint64 spared = qint64(32) << 20;

QString lockIn(const QString &folder)
{
    return folder + u"/lock"_s;
}

QString copyIn(const QString &folder)
{
    return folder + u"/copy"_s;
}

/// Folders whose files are in memory; none where the system has no such.
QStringList placesInMemory()
{
    QStringList places;
    for (const QString &place : {qEnvironmentVariable("XDG_RUNTIME_DIR"), u"/dev/shm"_s}) {
        if (!place.isEmpty() && QFileInfo(place).isWritable() &&
            QStorageInfo(place).fileSystemType() == "tmpfs")
            places.append(place);
    }
    return places;
}

bool hasRoom(const QString &place, qint64 bytes)
{
    return QStorageInfo(place).bytesAvailable() >= bytes + spared;
}

} // namespace

PrivateFolder::~PrivateFolder()
{
    // The lock lies in the folder, and goes first.
    m_lock.reset();
}

bool PrivateFolder::make(Content content, qint64 bytes)
{
    QStringList places = content == Content::Sealed ? placesInMemory() : QStringList();
    places.append(QDir::tempPath());
    return std::ranges::any_of(places,
                               [&](const QString &place) { return hasRoom(place, bytes) && makeIn(place); });
}

/// Only the user may enter what QTemporaryDir makes.
bool PrivateFolder::makeIn(const QString &place)
{
    m_lock.reset();
    m_folder = std::make_unique<QTemporaryDir>(place + u'/' + prefix + u"XXXXXX"_s);
    m_lock = std::make_unique<QLockFile>(lockIn(m_folder->path()));
    m_lock->setStaleLockTime(0);
    return m_folder->isValid() && m_lock->tryLock(0) && QDir().mkdir(copyIn(m_folder->path()));
}

QString PrivateFolder::path() const
{
    return m_folder ? copyIn(m_folder->path()) : QString();
}

void PrivateFolder::removeLeft()
{
    const uint owner = QFileInfo(QDir::homePath()).ownerId();
    QStringList places = placesInMemory();
    places.append(QDir::tempPath());
    for (const QString &place : std::as_const(places)) {
        const QFileInfoList left = QDir(place).entryInfoList(
            {prefix + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot);
        for (const QFileInfo &folder : left) {
            if (folder.ownerId() != owner)
                continue;
            QLockFile lock(lockIn(folder.filePath()));
            lock.setStaleLockTime(0);
            if (!lock.tryLock(0))
                continue;
            lock.unlock();
            QDir(folder.filePath()).removeRecursively();
        }
    }
}
