// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/keptpictures.h"

#include "shell/pictures/picturefolder.h"
#include "storage/saving.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString picturesName = u"Pictures"_s;

bool holds(const QString &path, QByteArrayView bytes)
{
    QFile file(path);
    return file.size() == bytes.size() && file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

} // namespace

QString KeptPictures::locate(const DataFolder &folder, const QString &path)
{
    if (path.isEmpty())
        return {};
    const QFileInfo inside(folder.path() + u'/' + path);
    if (QDir::isRelativePath(path) && inside.isFile())
        return QDir::cleanPath(inside.absoluteFilePath());
    return PictureFolder(folder).locate(path);
}

QString KeptPictures::stored(const DataFolder &folder, const QString &file)
{
    const QString path = QDir::cleanPath(QFileInfo(file).absoluteFilePath());
    const QString inside = QDir::cleanPath(QFileInfo(folder.path()).absoluteFilePath()) + u'/';
    return path.startsWith(inside) ? path.sliced(inside.size()) : path;
}

QString KeptPictures::keepCopy(const DataFolder &folder, const QString &file)
{
    if (const QString path = stored(folder, file); QDir::isRelativePath(path))
        return QFileInfo(file).isFile() ? path : QString();
    QFile source(file);
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = source.readAll();
    return source.error() == QFile::NoError ? keep(folder, bytes, QFileInfo(file).fileName()) : QString();
}

QString KeptPictures::keep(const DataFolder &folder, QByteArrayView bytes, const QString &name)
{
    const QString place = folder.filePath(picturesName);
    const DataFolder pictures(place, folder.whyReadOnly());
    const QFileInfo whole(name);
    const QString ending = whole.suffix().isEmpty() ? QString() : QString(u'.' + whole.suffix());
    QString kept = name;
    for (int number = 2; QFileInfo::exists(pictures.filePath(kept)); ++number) {
        if (holds(pictures.filePath(kept), bytes))
            return stored(folder, pictures.filePath(kept));
        kept = whole.completeBaseName() + u' ' + QString::number(number) + ending;
    }
    const bool isKept = !folder.isReadOnly() && !bytes.isEmpty() && QDir().mkpath(place) &&
                        Saving::replaceFile(pictures, kept, bytes);
    return isKept ? stored(folder, pictures.filePath(kept)) : QString();
}
