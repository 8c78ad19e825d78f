// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturereading.h"

#include "shell/pictures/exifblock.h"
#include "shell/pictures/heifpictures.h"
#include "shell/pictures/jpeghead.h"
#include "shell/pictures/picturelines.h"
#include "storage/systemmemory.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMutex>
#include <QTransform>

#include <algorithm>
#include <optional>

namespace {

constexpr qint64 mebibyte = 1'048'576;
/// More is never taken for one picture.
constexpr qint64 mostBytes = 512 * mebibyte;
/// Decoders that take more than this while they work have to wait for one another.
constexpr qint64 heavyBytes = 40 * mebibyte;
/// Pictures up to this many MiB are read without a look at the memory that there is; Qt's own limit.
constexpr int usualLimit = 128;

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

qint64 bytesOf(QSize pixels)
{
    return 4LL * pixels.width() * pixels.height();
}

/// One reading of a file.
class Reading
{
public:
    Reading(QFile &file, const std::atomic_bool *isStopped)
        : m_file(file)
        , m_reader(&file)
        , m_isStopped(isStopped)
    {
        m_reader.setDecideFormatFromContent(true);
        m_reader.setAutoTransform(true);
        m_stored = m_reader.size();
        m_isJpeg = m_reader.format() == "jpeg";
        if (m_reader.supportsOption(QImageIOHandler::ImageTransformation)) {
            m_isTurned = m_reader.transformation() & QImageIOHandler::TransformationRotate90;
        } else {
            QFile again(m_file.fileName());
            if (again.open(QIODevice::ReadOnly))
                m_orientation = ExifBlock::ofChunks(again).orientation;
            m_isTurned = ExifBlock::isOnItsSide(m_orientation);
        }
    }

    ReadPicture read(QSize bound)
    {
        ReadPicture picture{.pixels = m_isTurned ? m_stored.transposed() : m_stored};
        const QSize wanted = fitting(picture.pixels, bound);
        if (!makeRoom(wanted)) {
            picture.reason = PictureLines::tooLarge(picture.pixels);
            return picture;
        }
        if (wanted != picture.pixels)
            m_reader.setScaledSize(m_isTurned ? wanted.transposed() : wanted);
        const bool isWhole = decode(picture.image);
        if (picture.image.isNull()) {
            picture.reason = whyUnread(m_reader, m_file);
            return picture;
        }
        if (!picture.pixels.isValid())
            picture.pixels = picture.image.size();
        picture.isCut = !isWhole || (m_isJpeg && JpegHead::isCut(m_file));
        return picture;
    }

private:
    /// The size in which the picture is read; as large as there is room for, where it can be made small.
    QSize fitting(QSize whole, QSize bound) const
    {
        if (whole.isEmpty())
            return whole;
        QSize wanted = whole.scaled(bound, Qt::KeepAspectRatio).expandedTo({1, 1});
        if (wanted.width() >= whole.width())
            wanted = whole;
        while (m_isJpeg && !hasRoom(bytesOf(wanted)))
            wanted = (wanted * 0.7).expandedTo({1, 1});
        return wanted;
    }

    static bool hasRoom(qint64 bytes)
    {
        return bytes <= usualLimit * mebibyte || bytes <= std::min(mostBytes, SystemMemory::available() / 3);
    }

    /// Whether there is room for what the decoder needs. Of what takes much, only one is read at a time.
    bool makeRoom(QSize wanted)
    {
        if (!m_stored.isValid())
            return true;
        // Only JPEG files are made small while they are decoded.
        const qint64 bytes = bytesOf(m_isJpeg ? wanted : m_stored);
        if (!hasRoom(bytes))
            return false;
        const bool isHeavy =
            bytes > heavyBytes || (m_isJpeg && bytesOf(m_stored) > heavyBytes && isProgressive());
        if (isHeavy)
            m_turn.emplace(m_isStopped);
        if (bytes > usualLimit * mebibyte)
            m_limit = int(bytes / mebibyte) + 1;
        return true;
    }

    /// Such a file is in memory whole before its first line comes out.
    bool isProgressive() const
    {
        QFile file(m_file.fileName());
        return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) &&
               JpegHead::of(file.read(JpegHead::usualBytes)).isProgressive();
    }

    /// What was read of a cut picture stays in the image, where its decoder fills it from the top and leaves
    /// nothing else in it. False when not all of it could be read.
    bool decode(QImage &image)
    {
        const QByteArray kind = m_reader.format();
        if (kind == "png") { // which fills no lines that it does not come to
            image = QImage(m_stored, m_reader.imageFormat());
            image.fill(Qt::lightGray);
        }
        const int before = QImageReader::allocationLimit();
        if (m_limit > before)
            QImageReader::setAllocationLimit(m_limit);
        const bool isWhole = m_reader.read(&image);
        if (!isWhole && !QByteArrayList{"jpeg", "png", "gif"}.contains(kind))
            image = {};
        image = ExifBlock::upright(image, m_orientation);
        if (m_limit > before)
            QImageReader::setAllocationLimit(before);
        return isWhole;
    }

    QFile &m_file;
    QImageReader m_reader;
    const std::atomic_bool *m_isStopped;
    std::optional<HeavyWork> m_turn;
    QSize m_stored;        ///< as the file has it
    int m_orientation = 1; ///< where the reader does not turn the picture itself
    bool m_isTurned = false;
    bool m_isJpeg = false;
    int m_limit = 0; ///< in MiB, where the usual one is too low
};

} // namespace

ReadPicture PictureReading::read(const QString &path, QSize bound, const std::atomic_bool *isStopped)
{
    if (const QString why = whyNone(path); !why.isEmpty())
        return {.reason = why};
    StoppableFile file(path, isStopped);
    if (!file.open(QIODevice::ReadOnly))
        return {.reason = PictureLines::mayNotBeRead()};
    return Reading(file, isStopped).read(bound);
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
