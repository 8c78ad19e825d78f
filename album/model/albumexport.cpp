// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumexport.h"

#include "album/model/kepttexts.h"
#include "album/model/photooffile.h"
#include "album/model/photoshelf.h"
#include "shell/pictures/picturereading.h"
#include "storage/saving.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int jpegQuality = 90;
/// Of pictures that are only packed anew.
constexpr int fineQuality = 95;
/// More than any picture has: it is not made smaller.
constexpr int anySide = 30000;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    return file.error() == QFile::NoError ? bytes : QByteArray();
}

/// What can be seen through is white: a JPEG file has no transparency.
QImage onWhite(const QImage &picture)
{
    if (!picture.hasAlphaChannel())
        return picture;
    QImage opaque = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < opaque.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(opaque.scanLine(y));
        for (int x = 0; x < opaque.width(); ++x) {
            const QRgb color = line[x];
            const int white = 255 - qAlpha(color);
            line[x] = qRgb(qRed(color) + white, qGreen(color) + white, qBlue(color) + white);
        }
    }
    return opaque;
}

QByteArray asJpeg(const QImage &picture, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return onWhite(picture).save(&buffer, "JPG", quality) ? bytes : QByteArray();
}

} // namespace

/// The part that runs on the other thread.
class AlbumExport::Walk
{
public:
    Walk(Wish wish, std::vector<Photo> photos)
        : m_wish(std::move(wish))
        , m_photos(std::move(photos))
    {}

    Result run(const Walker::Stop &isStopped, const std::function<void(int, int)> &progress)
    {
        const int count = int(m_photos.size());
        for (int i = 0; i < count && !isStopped && !m_result.isDiskFull; ++i) {
            give(m_photos[std::size_t(i)], i + 1, isStopped);
            progress(i + 1, count);
        }
        m_result.wasStopped = isStopped;
        return m_result;
    }

private:
    void give(const Photo &photo, int number, const Walker::Stop &isStopped)
    {
        QString name = nameOf(number, int(m_photos.size()), QFileInfo(photo.path).fileName());
        const bool isSmaller = m_wish.longerSide > 0;
        QByteArray bytes = isSmaller ? packed(photo, m_wish.longerSide, jpegQuality, isSmaller, isStopped)
                                     : original(photo, name, isStopped);
        if (isStopped)
            return;
        if (isSmaller)
            name = asJpegName(name);
        if (bytes.isEmpty())
            m_result.failed.append(photo.path);
        else if (!write(name, bytes, photo))
            m_result.failed.append(photo.path);
        else
            ++m_result.written;
    }

    static QString asJpegName(const QString &name) { return QFileInfo(name).completeBaseName() + u".jpg"_s; }

    PictureTexts texts(const Photo &photo) const
    {
        return m_wish.hasTexts ? PhotoOfFile::texts(photo) : PictureTexts();
    }

    /// Turned as the album has it, no larger than `side`; with its date, which it had from the original.
    QByteArray packed(const Photo &photo, int side, int quality, bool isSmaller,
                      const Walker::Stop &isStopped)
    {
        const ReadPicture picture = PictureReading::read(photo.path, {side, side}, &isStopped);
        if (picture.image.isNull() || isStopped)
            return {};
        const QByteArray bytes = asJpeg(PictureReading::turned(picture.image, photo.turns), quality);
        PictureTexts said = texts(photo);
        if (said.date.isEmpty() && (m_wish.hasTexts || !isSmaller))
            said.date = QString::fromLatin1(photo.date.edtf());
        const QByteArray result =
            KeptTexts::forGivingAway(bytes, said, m_wish.today, KeptTexts::Coordinates::Left);
        if (result.isEmpty() && !said.isEmpty())
            m_result.withoutTexts.append(photo.path);
        return result.isEmpty() ? bytes : result;
    }

    /// As it is, but for what is said in it. Where coordinates are to be taken out and cannot be, or no mark
    /// turns it, it is packed anew.
    QByteArray original(const Photo &photo, QString &name, const Walker::Stop &isStopped)
    {
        const QByteArray bytes = contentOf(photo.path);
        if (bytes.isEmpty())
            return {};
        const auto coordinates =
            m_wish.hasCoordinates ? KeptTexts::Coordinates::Left : KeptTexts::Coordinates::TakenOut;
        const bool isChanged = m_wish.hasTexts || !m_wish.hasCoordinates || photo.turns != 0;
        const QByteArray result = isChanged ? KeptTexts::forGivingAway(bytes, textsOf(photo), m_wish.today,
                                                                       coordinates, photo.turns)
                                            : bytes;
        if (!result.isEmpty())
            return result;
        if (photo.turns != 0 || (!m_wish.hasCoordinates && mayHaveCoordinates(photo.path))) {
            name = asJpegName(name);
            return packed(photo, anySide, fineQuality, false, isStopped);
        }
        if (m_wish.hasTexts && !PhotoOfFile::texts(photo).isEmpty())
            m_besides.append(name);
        return bytes;
    }

    /// What the file says already stays where nothing is to be added.
    PictureTexts textsOf(const Photo &photo) const
    {
        return m_wish.hasTexts ? PhotoOfFile::texts(photo) : KeptTexts::read(photo.path, m_wish.today).texts;
    }

    /// Of a picture that could not be read, or was left alone, nobody knows that it has none.
    static bool mayHaveCoordinates(const QString &path)
    {
        const QString ending = QFileInfo(path).suffix().toLower();
        const bool neverHas = ending == u"gif"_s || ending == u"bmp"_s;
        const FoundTexts found = KeptTexts::read(path, QDate());
        return found.hasCoordinates || (found.pixels.isEmpty() && !neverHas);
    }

    bool write(const QString &name, const QByteArray &bytes, const Photo &photo)
    {
        const QDir folder(m_wish.folder);
        QString free = name;
        const QFileInfo parts(name);
        for (int number = 2; folder.exists(free); ++number)
            free = parts.completeBaseName() + u' ' + QString::number(number) + u'.' + parts.suffix();
        const bool isBeside = m_besides.removeAll(name) > 0;
        if (!Saving::replaceFile(DataFolder(m_wish.folder), free, bytes)) {
            m_result.isDiskFull = QStorageInfo(m_wish.folder).bytesAvailable() < bytes.size();
            return false;
        }
        const QString path = folder.filePath(free);
        QFile file(path);
        if (file.open(QIODevice::ReadWrite))
            file.setFileTime(QDateTime::fromSecsSinceEpoch(photo.fileTime),
                             QFileDevice::FileModificationTime);
        file.close();
        if (isBeside &&
            !KeptTexts::write(path, PhotoOfFile::texts(photo), KeptTexts::Into::Beside, m_wish.today).isKept)
            m_result.withoutTexts.append(photo.path);
        return true;
    }

    const Wish m_wish;
    const std::vector<Photo> m_photos; ///< with full paths
    QStringList m_besides;             ///< files whose texts come to lie beside them
    Result m_result;
};

AlbumExport::AlbumExport(PhotoShelf &shelf, QObject *parent)
    : QObject(parent)
    , m_shelf(shelf)
    , m_walker(this)
{}

QString AlbumExport::nameOf(int number, int count, const QString &fileName)
{
    const int digits = std::max(3, int(QString::number(count).size()));
    QString name = QString::number(number).rightJustified(digits, u'0') + u' ' + fileName;
    for (QChar &character : name) { // a stick takes none of these in a name
        if (u":?*\"<>|\\"_s.contains(character) || character < u' ')
            character = u'_';
    }
    return name;
}

void AlbumExport::start(const Wish &wish)
{
    std::vector<Photo> photos;
    for (const int record : wish.records) {
        const Photo *photo = m_shelf.photo(record);
        if (!photo)
            continue;
        photos.push_back(*photo);
        photos.back().path = m_shelf.filePath(*photo);
    }
    auto walk = std::make_shared<Walk>(wish, std::move(photos));
    auto result = std::make_shared<Result>();
    const auto progress = [this](int done, int total) {
        m_walker.tell([this, done, total] { emit progressed(done, total); });
    };
    m_walker.start([=](const Walker::Stop &isStopped) { *result = walk->run(isStopped, progress); },
                   [this, result](bool) { emit finished(*result); });
}
