// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/picturepool.h"

#include "backup/model/setfolder.h"
#include "storage/disk.h"

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto damagedSuffix = ".damaged"_L1;
constexpr qsizetype digits = 32;
constexpr qsizetype longestName = 80;

QByteArray keyOf(const QByteArray &hash)
{
    return hash.toHex().first(std::min(digits, 2 * hash.size()));
}

/// The digits in the name of a picture; none in any other.
QByteArray keyIn(const QString &fileName)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    const QStringView base = dot < 0 ? QStringView(fileName) : QStringView(fileName).first(dot);
    if (base.size() < digits)
        return {};
    const QStringView key = base.last(digits);
    const auto isDigit = [](QChar letter) {
        return (letter >= u'0' && letter <= u'9') || (letter >= u'a' && letter <= u'f');
    };
    return std::ranges::all_of(key, isDigit) ? key.toLatin1() : QByteArray();
}

} // namespace

PicturePool::PicturePool(const QString &path)
    : m_folder(path)
{
    QDirIterator entries(path, QDir::Files);
    while (entries.hasNext()) {
        entries.next();
        QString name = entries.fileName();
        const bool isDamaged = name.endsWith(damagedSuffix);
        if (isDamaged)
            name.chop(damagedSuffix.size());
        const QByteArray key = keyIn(name);
        if (!key.isEmpty() && isDamaged)
            m_damaged.insert(key, entries.filePath());
        else if (!key.isEmpty())
            insert(key, entries.filePath(), entries.fileInfo().size());
    }
}

void PicturePool::insert(const QByteArray &key, const QString &path, qint64 size)
{
    m_pictures.insert(key, {path, size});
    m_sizes.insert(size);
}

QString PicturePool::find(const QByteArray &hash, qint64 size) const
{
    const auto found = m_pictures.constFind(keyOf(hash));
    return found != m_pictures.cend() && found->size == size ? found->path : QString();
}

QString PicturePool::damaged(const QByteArray &hash) const
{
    return m_damaged.value(keyOf(hash));
}

QString PicturePool::pathFor(const QString &name, const QByteArray &hash) const
{
    if (const QString aside = damaged(hash); !aside.isEmpty())
        return aside.chopped(damagedSuffix.size());
    const QFileInfo file(name);
    const QString base = SetFolder::escaped(file.completeBaseName()).left(longestName);
    const QString ending =
        file.suffix().isEmpty() ? QString() : QString(u'.' + SetFolder::escaped(file.suffix()));
    return m_folder + u'/' + base + u' ' + QString::fromLatin1(keyOf(hash)) + ending;
}

void PicturePool::add(const QString &path, const QByteArray &hash, qint64 size)
{
    insert(keyOf(hash), path, size);
}

void PicturePool::look(const QString &path, const QByteArray &hash)
{
    const QFileInfo file(path);
    const QByteArray key = keyIn(file.fileName());
    if (key.isEmpty() || key == keyOf(hash) || !Disk::renameOver(path, path + damagedSuffix))
        return;
    Disk::flushNames(file.path());
}

QStringList PicturePool::without(const QSet<QByteArray> &hashes) const
{
    QSet<QByteArray> keys;
    for (const QByteArray &hash : hashes)
        keys.insert(keyOf(hash));
    QStringList paths;
    for (auto picture = m_pictures.cbegin(); picture != m_pictures.cend(); ++picture) {
        if (!keys.contains(picture.key()))
            paths.append(picture->path);
    }
    for (auto aside = m_damaged.cbegin(); aside != m_damaged.cend(); ++aside) {
        if (!keys.contains(aside.key()))
            paths.append(aside.value());
    }
    return paths;
}
