// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/albumpages.h"

#include <QRectF>

/// An album as a book: a title sheet, what is in it, then the pictures with their stories.
class AlbumBook
{
public:
    AlbumBook(const QString &title, const std::vector<AlbumPages::Picture> &pictures,
              const AlbumPages::Options &options, const PageContext &context);

    Page page();

    /// The largest place of a picture, in inches.
    static QSizeF placeSize(const AlbumPages::Options &options, const PageSetup &setup);

    /// Puts a picture in the middle of its place, as large as fits; where it cannot be read there is its name
    /// in a frame. What of the place it takes.
    static QRectF placePicture(Page &page, const AlbumPages::Picture &picture, const QRectF &place);

private:
    void findChapters();
    void addTitle();
    void addContents();
    void addPictures();
    void addSingle(const AlbumPages::Picture &picture, int mark);
    void addFour(std::size_t first, std::size_t end, bool beginsChapter);
    void addStory(const AlbumPages::Picture &picture, bool withCaption);
    QString years() const;

    const QString m_title;
    const std::vector<AlbumPages::Picture> &m_pictures;
    const AlbumPages::Options &m_options;
    const PageContext &m_context;
    std::vector<std::size_t> m_chapters; ///< the first picture of each; empty where there are none
    Page m_page;
};
