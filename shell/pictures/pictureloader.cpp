// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/pictureloader.h"

#include "shell/pages/pagepicture.h"

#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int copyQuality = 90;
/// Beyond this many pixels a file is no photograph of anybody, and closing the window would wait for it.
constexpr qint64 greatestPixelCount = 250'000'000;

bool isTooLarge(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    return size.isValid() && qint64(size.width()) * size.height() > greatestPixelCount;
}

LoadedPicture read(const PictureFolder &pictures, const QString &stored, QSize bound)
{
    const QString path = pictures.locate(stored);
    if (path.isEmpty() || isTooLarge(path))
        return {};
    const PagePicture picture = PagePicture::read(path, bound);
    return {picture.image, picture.shape.toSize()};
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
    , m_isWanted(std::make_shared<std::atomic_bool>(true))
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
    start([pictures = m_pictures, stored, bound] { return read(pictures, stored, bound); }, std::move(done));
}

void PictureLoader::copy(const QString &stored, QSize bound, const QString &target, Done done)
{
    const auto job = [pictures = m_pictures, stored, bound, target] {
        LoadedPicture picture = read(pictures, stored, bound);
        if (!picture.image.isNull() && !onWhite(picture.image).save(target, "JPG", copyQuality))
            picture.image = {};
        return picture;
    };
    start(job, std::move(done));
}

void PictureLoader::forget()
{
    *m_isWanted = false;
    m_threads.clear();
    m_isWanted = std::make_shared<std::atomic_bool>(true);
}

void PictureLoader::start(std::function<LoadedPicture()> job, Done done)
{
    m_threads.start([this, job = std::move(job), done = std::move(done), isWanted = m_isWanted] {
        if (!*isWanted)
            return;
        const LoadedPicture picture = job();
        const auto answer = [picture, done, isWanted] {
            if (*isWanted)
                done(picture);
        };
        QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
    });
}
