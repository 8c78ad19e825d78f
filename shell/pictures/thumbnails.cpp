// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/thumbnails.h"

#include "storage/systemfile.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QTemporaryFile>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int quality = 80;
/// The text in a thumbnail's file that marks a cut picture.
const QString cutText = u"Cut"_s;
constexpr qint64 secondsOfADay = 86'400;

QByteArray fileOf(const QImage &picture, bool isCut)
{
    const bool isSmall = std::max(picture.width(), picture.height()) <= Thumbnails::side;
    const QImage image = isSmall ? picture
                                 : picture.scaled(Thumbnails::side, Thumbnails::side, Qt::KeepAspectRatio,
                                                  Qt::SmoothTransformation);
    QImage opaque(image.size().expandedTo({1, 1}), QImage::Format_RGB32);
    opaque.fill(Qt::white); // behind what can be seen through
    QPainter(&opaque).drawImage(QRect(QPoint(), opaque.size()), image);
    if (isCut)
        opaque.setText(cutText, u"1"_s);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return opaque.save(&buffer, "JPG", quality) ? bytes : QByteArray();
}

/// Remembers that the file was looked at, once a day: that is enough to tell which is the oldest.
void touch(QFile &file)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (file.fileTime(QFileDevice::FileModificationTime).secsTo(now) <= secondsOfADay ||
        file.setFileTime(now, QFileDevice::FileModificationTime))
        return;
    QFile writable(file.fileName()); // some systems want it open for writing
    if (writable.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        writable.setFileTime(now, QFileDevice::FileModificationTime);
}

/// The name of a new file beside `path` that holds `bytes` and is not open any more: some systems rename no
/// other. Empty where there is none.
QString writtenBeside(const QString &path, const QByteArray &bytes)
{
    QTemporaryFile file(path + u".XXXXXX"_s);
    if (bytes.isEmpty() || !file.open() || file.write(bytes) != bytes.size() || !file.flush())
        return {};
    file.setAutoRemove(false);
    return file.fileName();
}

} // namespace

ThumbnailKey ThumbnailKey::of(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile())
        return {path};
    return {path, file.size(), file.lastModified().toSecsSinceEpoch()};
}

Thumbnails::Thumbnails(const QString &folder, qint64 mostBytes)
    : m_folder(folder)
    , m_most(mostBytes)
{}

QString Thumbnails::pathOf(const ThumbnailKey &key) const
{
    const QString text = key.path + u'\n' + QString::number(key.size) + u'\n' + QString::number(key.time);
    const QByteArray name = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Blake2b_160);
    return m_folder + u'/' + QString::fromLatin1(name.toHex()) + u".jpg"_s;
}

Thumbnails::Found Thumbnails::read(const ThumbnailKey &key) const
{
    QFile file(pathOf(key));
    if (m_folder.isEmpty() || key.size < 0 || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    touch(file);
    const QImage image = QImage::fromData(file.readAll(), "JPG");
    return {image, !image.text(cutText).isEmpty()};
}

bool Thumbnails::has(const ThumbnailKey &key) const
{
    return !m_folder.isEmpty() && key.size >= 0 && QFileInfo::exists(pathOf(key));
}

void Thumbnails::write(const ThumbnailKey &key, const QImage &picture, bool isCut)
{
    if (m_folder.isEmpty() || key.size < 0 || picture.isNull() || !QDir().mkpath(m_folder))
        return;
    const QByteArray bytes = fileOf(picture, isCut);
    const QString path = pathOf(key);
    // Written beside its place: whoever reads finds a whole one or none.
    const QString written = writtenBeside(path, bytes);
    if (written.isEmpty())
        return;
    if (SystemFile::renameOver(written, path))
        QFile::remove(written);
    else
        count(bytes.size());
}

void Thumbnails::count(qint64 bytes)
{
    const QMutexLocker lock(&m_counting);
    if (m_bytes < 0) {
        m_bytes = 0;
        for (const QFileInfo &file : QDir(m_folder).entryInfoList(QDir::Files))
            m_bytes += file.size();
    } else {
        m_bytes += bytes;
    }
    if (m_bytes > m_most)
        makeRoom();
}

/// A tenth more than there must be, so that it is not done for each picture.
void Thumbnails::makeRoom()
{
    const QFileInfoList files = QDir(m_folder).entryInfoList(QDir::Files, QDir::Time | QDir::Reversed);
    m_bytes = 0;
    for (const QFileInfo &file : files)
        m_bytes += file.size();
    for (const QFileInfo &file : files) {
        if (m_bytes <= m_most / 10 * 9)
            break;
        if (QFile::remove(file.filePath()))
            m_bytes -= file.size();
    }
}
