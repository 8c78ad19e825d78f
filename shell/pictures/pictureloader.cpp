// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/pictureloader.h"

#include "shell/pages/pagepicture.h"
#include "shell/pictures/picturereading.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int copyQuality = 90;

LoadedPicture read(const PictureFolder &pictures, const QString &stored, QSize bound,
                   const std::atomic_bool &isStopped)
{
    const QString path = pictures.locate(stored);
    if (path.isEmpty())
        return {};
    const ReadPicture picture = PictureReading::read(path, bound, &isStopped);
    return {picture.image, picture.pixels};
}

/// Whether one is wider than high and the other higher than wide.
bool lieCrosswise(QSizeF one, QSizeF other)
{
    return (one.width() - one.height()) * (other.width() - other.height()) < 0;
}

/// The picture as it is printed: turned, and cut where it is to fill its place.
LoadedPicture readForPaper(const PictureFolder &pictures, const PaperPicture &wanted,
                           const std::atomic_bool &isStopped)
{
    const QString path = pictures.locate(wanted.stored);
    const QSizeF upright = PagePicture::shapeOf(path);
    if (path.isEmpty())
        return {};
    const QSizeF shape = wanted.turns % 2 == 0 ? upright : upright.transposed();
    const bool isTurned = wanted.mayBeTurned && lieCrosswise(shape, wanted.place);
    const int turns = wanted.turns + (isTurned ? 1 : 0);
    QSize bound = turns % 2 == 0 ? wanted.place : wanted.place.transposed();
    if (wanted.isFilling && !upright.isEmpty())
        bound = upright.scaled(bound, Qt::KeepAspectRatioByExpanding).toSize();
    const ReadPicture read = PictureReading::read(path, bound, &isStopped);
    QImage image = PictureReading::turned(read.image, turns);
    if (wanted.isFilling && !image.isNull()) {
        QRect part(QPoint(), wanted.place.scaled(image.size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
        part.moveCenter(image.rect().center());
        image = image.copy(part);
        return {image, image.size()};
    }
    return {image, turns % 2 == 0 ? read.pixels : read.pixels.transposed()};
}

/// Without what shines through: a JPEG file has no transparency.
QImage onWhite(const QImage &picture)
{
    if (!picture.hasAlphaChannel())
        return picture;
    QImage opaque(picture.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, picture);
    return opaque;
}

} // namespace

PictureLoader::PictureLoader(const DataFolder &folder, QObject *parent)
    : QObject(parent)
    , m_pictures(folder)
    , m_isForgotten(std::make_shared<std::atomic_bool>(false))
{
    m_threads.setMaxThreadCount(std::max(1, QThread::idealThreadCount() - 1));
    m_threads.setThreadPriority(QThread::LowPriority);
}

PictureLoader::~PictureLoader()
{
    forget();
    m_threads.waitForDone();
}

void PictureLoader::load(const QString &stored, QSize bound, Done done)
{
    const auto job = [pictures = m_pictures, stored, bound](const std::atomic_bool &isForgotten) {
        return read(pictures, stored, bound, isForgotten);
    };
    start(job, std::move(done));
}

void PictureLoader::copy(const PaperPicture &picture, const QString &target, Done done)
{
    const auto job = [pictures = m_pictures, picture, target](const std::atomic_bool &isForgotten) {
        LoadedPicture read = readForPaper(pictures, picture, isForgotten);
        if (!read.image.isNull() && !isForgotten && !onWhite(read.image).save(target, "JPG", copyQuality))
            read.image = {};
        return read;
    };
    start(job, std::move(done));
}

void PictureLoader::forget()
{
    *m_isForgotten = true;
    m_threads.clear();
    m_isForgotten = std::make_shared<std::atomic_bool>(false);
}

void PictureLoader::start(Job job, Done done)
{
    m_threads.start([this, job = std::move(job), done = std::move(done), isForgotten = m_isForgotten] {
        if (*isForgotten)
            return;
        const LoadedPicture picture = job(*isForgotten);
        const auto answer = [picture, done, isForgotten] {
            if (!*isForgotten)
                done(picture);
        };
        QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
    });
}
