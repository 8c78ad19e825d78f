// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// An album: a record of `Photobk4.Fil`.
struct PhotoAlbum {
    enum class Sorting : quint8 { ByHand, ByDate, ByName };
    /// Where what is said of its pictures is written to.
    enum class Into : quint8 { Nowhere, Picture, Beside };

    int record = 0;
    quint32 order = 0;
    int cover = 0; ///< a picture's record; 0: its first
    Sorting sorting = Sorting::ByDate;
    Into into = Into::Nowhere;
    QString name{};
    QString folder{}; ///< whose new pictures it takes in; empty: none

    bool operator==(const PhotoAlbum &) const = default;
};

/// A picture's place in an album: a record of the same file.
struct PhotoPlace {
    int record = 0;
    int album = 0;
    int photo = 0;
    quint32 order = 0; ///< in steps, so that one finds room between two others

    bool operator==(const PhotoPlace &) const = default;
};
