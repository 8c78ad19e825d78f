// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/albumpages.h"

#include <QRectF>

/// Where pictures stand on a sheet, in inches.
struct PaperGrid {
    QPointF corner; ///< of the first
    QSizeF cell;    ///< from one to the next
    QSizeF picture; ///< the place in a cell, at its top left corner
    int across = 1;
    int down = 1;

    int count() const { return across * down; }
    /// The place of picture `index` of a sheet.
    QRectF place(int index) const;

    /// Several to a sheet, below the title.
    static PaperGrid ofSheets(const AlbumPages::Options &options, const PageSetup &setup);
    /// Small ones with room for their file names.
    static PaperGrid ofContacts(const PageSetup &setup);
    /// As many photographs as have room, with room for marks around them.
    static PaperGrid ofPhotographs(AlbumPages::PhotoSize size, const PageSetup &setup);
    /// Two by two on a sheet of a book.
    static PaperGrid ofBook(const PageSetup &setup, double margin, double top, double height);

    /// How many lines of a caption stand below a picture.
    static int captionLines(int perSheet);
    static TextRole captionRole(int perSheet);
};
