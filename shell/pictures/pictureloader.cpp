// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/pictureloader.h"

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

void PictureLoader::copy(const QString &stored, QSize bound, const QString &target, Done done)
{
    const auto job = [pictures = m_pictures, stored, bound, target](const std::atomic_bool &isForgotten) {
        LoadedPicture picture = read(pictures, stored, bound, isForgotten);
        if (!picture.image.isNull() && !isForgotten &&
            !onWhite(picture.image).save(target, "JPG", copyQuality))
            picture.image = {};
        return picture;
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
