// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

#include <atomic>

/// A picture as far as its file could be read.
struct ReadPicture {
    QImage image = {};   ///< upright; null when nothing of it can be shown
    QSize pixels = {};   ///< of the whole picture, upright
    bool isCut = false;  ///< the file ends before the picture does
    QString reason = {}; ///< why there is no image
};

/// Reading picture files of any kind, on any thread, with the reason for what cannot be read.
namespace PictureReading {

/// The picture of `path`, scaled down while it is read so that it fits `bound`, as its camera was held. Once
/// `isStopped` is set it ends as soon as the file is asked for more; what it gives then is worth nothing.
ReadPicture read(const QString &path, QSize bound, const std::atomic_bool *isStopped = nullptr);

/// The small preview that cameras put at the beginning of their files, upright and without the black bars
/// that some have; null where there is none.
QImage preview(const QString &path);

/// The picture turned by so many quarters to the right.
QImage turned(const QImage &picture, int quarters);

} // namespace PictureReading
