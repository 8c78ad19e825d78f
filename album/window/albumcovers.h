// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturequeue.h"

#include <QHash>
#include <QObject>

class PhotoShelf;

/// What stands for each album in the list of them: a small square of its cover, or of its first picture. They
/// are read when the pictures that are looked at have been.
class AlbumCovers final : public QObject
{
    Q_OBJECT
public:
    /// Waits for what `before` reads.
    AlbumCovers(const PhotoShelf &shelf, const PictureQueue &before, const QString &thumbnails,
                QObject *parent);

    /// Albums or their pictures are others; `ratio` is that of the screen.
    void follow(double ratio);
    /// Null where it has not been read, or the album is empty.
    QImage of(int album) const { return m_squares.value(m_covers.value(album)); }

signals:
    void arrived(int album);

private:
    void ask();
    void take(int record, const QImage &image);

    const PhotoShelf &m_shelf;
    const PictureQueue &m_before;
    PictureQueue m_queue;
    QHash<int, int> m_covers; ///< the records of pictures, by album
    QHash<int, QImage> m_squares;
    double m_ratio = 1;
};
