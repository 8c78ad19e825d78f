// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturereading.h"

#include "shell/pictures/heifpictures.h"
#include "shell/pictures/jpeghead.h"
#include "shell/pictures/picturelines.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMutex>
#include <QTransform>

#include <optional>

namespace {

/// Beyond this many pixels a file is no photograph of anybody.
constexpr qint64 greatestPixelCount = 1'000'000'000;
/// Decoders that take more than this while they work have to wait for one another.
constexpr qint64 heavyBytes = 32 * 1024 * 1024;
constexpr qint64 mebibyte = 1024 * 1024;

/// A file that has no more to give once the reading is to stop: no decoder can be stopped otherwise.
class StoppableFile final : public QFile
{
public:
    StoppableFile(const QString &path, const std::atomic_bool *isStopped)
        : QFile(path)
        , m_isStopped(isStopped)
    {}

protected:
    qint64 readData(char *data, qint64 size) override
    {
        return m_isStopped && *m_isStopped ? 0 : QFile::readData(data, size);
    }

private:
    const std::atomic_bool *m_isStopped;
};

/// Holds what only one thread may do at a time; gives up waiting when the reading is to stop.
class HeavyWork
{
public:
    explicit HeavyWork(const std::atomic_bool *isStopped)
    {
        while (!m_isHeld && !(isStopped && *isStopped))
            m_isHeld = turn().tryLock(10);
    }
    ~HeavyWork()
    {
        if (m_isHeld)
            turn().unlock();
    }
    Q_DISABLE_COPY_MOVE(HeavyWork)

private:
    static QMutex &turn()
    {
        static QMutex mutex;
        return mutex;
    }

    bool m_isHeld = false;
};

/// Why the file cannot be a picture; empty when it may be one.
QString whyNone(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return PictureLines::pictureNotFound();
    if (!file.isFile()) // opening a pipe or a device would wait for it
        return PictureLines::noFile();
    if (!file.isReadable())
        return PictureLines::mayNotBeRead();
    return file.size() == 0 ? PictureLines::emptyFile() : QString();
}

/// The kind of picture that the first bytes tell, where it needs something that may not be installed.
QString kindFrom(QByteArrayView first)
{
    if (const QByteArray kind = HeifPictures::kind(first); !kind.isEmpty())
        return QString::fromLatin1(kind);
    if (first.startsWith("RIFF") && first.sliced(std::min<qsizetype>(8, first.size())).startsWith("WEBP"))
        return QStringLiteral("WebP");
    if (first.startsWith(QByteArrayView("II*\0", 4)) || first.startsWith(QByteArrayView("MM\0*", 4)))
        return QStringLiteral("TIFF");
    return {};
}

QString whyUnread(const QImageReader &reader, QIODevice &file)
{
    if (reader.error() != QImageReader::UnsupportedFormatError)
        return PictureLines::damagedPicture();
    file.seek(0);
    const QByteArray first = file.read(16);
    const QString kind = kindFrom(first);
    return kind.isEmpty() ? PictureLines::noPictureInside() : PictureLines::kindNotInstalled(kind);
}

/// Whether a whole picture of this size is decoded before it is made small.
bool isDecodedWhole(const QImageReader &reader)
{
    return !reader.supportsOption(QImageIOHandler::ScaledSize) || reader.format() != "jpeg";
}

QString whyTooLarge(const QImageReader &reader, QSize size)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    const qint64 bytes = isDecodedWhole(reader) ? 4 * pixels : 0;
    const bool isTooLarge = pixels > greatestPixelCount || bytes > QImageReader::allocationLimit() * mebibyte;
    return isTooLarge ? PictureLines::tooLarge(size) : QString();
}

} // namespace

ReadPicture PictureReading::read(const QString &path, QSize bound, const std::atomic_bool *isStopped)
{
    if (const QString why = whyNone(path); !why.isEmpty())
        return {.reason = why};
    StoppableFile file(path, isStopped);
    if (!file.open(QIODevice::ReadOnly))
        return {.reason = PictureLines::mayNotBeRead()};
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize stored = reader.size();
    if (const QString why = whyTooLarge(reader, stored); !why.isEmpty())
        return {.pixels = stored, .reason = why};
    const bool isTurned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    ReadPicture picture{.pixels = isTurned ? stored.transposed() : stored};
    const QSize wanted = picture.pixels.scaled(bound, Qt::KeepAspectRatio).expandedTo({1, 1});
    if (stored.isValid() && wanted.width() < picture.pixels.width())
        reader.setScaledSize(isTurned ? wanted.transposed() : wanted);
    std::optional<HeavyWork> turn;
    if (isDecodedWhole(reader) && 4 * qint64(stored.width()) * stored.height() > heavyBytes)
        turn.emplace(isStopped);
    const bool isJpeg = reader.format() == "jpeg";
    const bool isWhole = reader.read(&picture.image); // what was read of a cut one stays in the image
    if (picture.image.isNull())
        picture.reason = whyUnread(reader, file);
    else if (!picture.pixels.isValid())
        picture.pixels = picture.image.size();
    picture.isCut = !picture.image.isNull() && (!isWhole || (isJpeg && JpegHead::isCut(file)));
    return picture;
}

QImage PictureReading::preview(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    const QByteArray first = file.read(JpegHead::usualBytes);
    if (HeifPictures::kind(first).isEmpty())
        return JpegHead::of(first).preview();
    return file.seek(0) ? HeifPictures::preview(file) : QImage();
}

QImage PictureReading::turned(const QImage &picture, int quarters)
{
    const int turns = (quarters % 4 + 4) % 4;
    return turns == 0 ? picture : picture.transformed(QTransform().rotate(90 * turns));
}
