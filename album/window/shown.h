// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/shelfview.h"

#include <QString>

/// What the grid shows: a view of the shelf, or what a search has found in all of it.
struct PhotosShown {
    ShelfView view{};
    QString words{}; ///< that are searched for; empty: no search

    bool isSearch() const { return !words.isEmpty(); }
    bool isOf(ShelfView::Kind kind) const { return !isSearch() && view.kind == kind; }
    bool operator==(const PhotosShown &) const = default;
};
