// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/albumcovers.h"

#include "album/model/photoshelf.h"
#include "album/window/wanted.h"
#include "shell/controls/panerowdelegate.h"

#include <QSet>

#include <algorithm>

namespace {

/// The longer side of a photograph whose shorter one fills the square.
constexpr double longerSide = 1.5;

} // namespace

AlbumCovers::AlbumCovers(const PhotoShelf &shelf, const PictureQueue &before, const QString &thumbnails,
                         QObject *parent)
    : QObject(parent)
    , m_shelf(shelf)
    , m_before(before)
    , m_queue(thumbnails)
{
    connect(&before, &PictureQueue::emptied, this, &AlbumCovers::ask);
    connect(&m_queue, &PictureQueue::arrived, this, &AlbumCovers::take);
}

void AlbumCovers::follow(double ratio)
{
    m_ratio = ratio;
    m_covers.clear();
    QSet<int> wanted;
    for (const PhotoAlbum &album : m_shelf.albums()) {
        const int cover = m_shelf.coverOf(album.record);
        m_covers.insert(album.record, cover);
        wanted.insert(cover);
    }
    m_squares.removeIf([&wanted](const auto &square) { return !wanted.contains(square.key()); });
    if (m_before.waitingCount() == 0)
        ask();
}

void AlbumCovers::ask()
{
    m_queue.setSide(qRound(PaneRowDelegate::pictureSide * m_ratio * longerSide));
    std::vector<WantedPicture> wanted;
    for (const int cover : std::as_const(m_covers)) {
        if (cover != 0)
            wanted.push_back(wantedPicture(m_shelf, cover));
    }
    m_queue.show({}, wanted);
}

void AlbumCovers::take(int record, const QImage &image)
{
    const int shorter = std::min(image.width(), image.height());
    const int side = qRound(PaneRowDelegate::pictureSide * m_ratio);
    QImage square =
        image.copy((image.width() - shorter) / 2, (image.height() - shorter) / 2, shorter, shorter)
            .scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    square.setDevicePixelRatio(m_ratio);
    m_squares.insert(record, square);
    for (const auto &[album, cover] : m_covers.asKeyValueRange()) {
        if (cover == record)
            emit arrived(album);
    }
}
