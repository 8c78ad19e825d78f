// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photoalbum.h"

#include <QDate>
#include <QList>
#include <QString>

#include <vector>

class PhotoShelf;

/// Which pictures are shown.
struct ShelfView {
    enum class Kind {
        All,
        NoAlbum,
        OnThisDay, ///< of today's day and month in other years
        NoDate,
        Missing,
        Year,
        Decade, ///< dates that are no more exact than that
        Album
    };

    Kind kind = Kind::All;
    int number = 0; ///< the year, the decade's first, or the album's record

    bool operator==(const ShelfView &) const = default;
};

namespace ShelfViews {

/// The pictures of a view, in their order. By hand is for albums alone; elsewhere it is by date.
QList<int> pictures(const PhotoShelf &shelf, const ShelfView &view, PhotoAlbum::Sorting sorting, QDate today);

/// A year or a decade in which there are pictures.
struct Period {
    ShelfView view;
    QString title; ///< "1974", "The 1980s"
    int count = 0;

    bool operator==(const Period &) const = default;
};
/// The latest first; a decade stands behind its years.
std::vector<Period> periods(const PhotoShelf &shelf);

/// How many pictures the views have that are neither periods nor albums.
int count(const PhotoShelf &shelf, ShelfView::Kind kind, QDate today);

/// Puts pictures in this order; by hand leaves them as they are.
void sort(const PhotoShelf &shelf, QList<int> &pictures, PhotoAlbum::Sorting sorting);

} // namespace ShelfViews
