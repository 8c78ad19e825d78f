// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photoalbum.h"
#include "album/model/photosearch.h"
#include "album/window/shown.h"
#include "shell/controls/titledview.h"

class EmptyPage;
class PhotoGrid;
class PhotoShelf;
class PhotoTiles;
class PictureQueue;
class QComboBox;
class QSlider;
class QStackedLayout;
struct Program;

/// The grid of what is shown, with its title, the order and the size of its pictures; or, where there is
/// none, what to do about it.
class AlbumView final : public TitledView
{
    Q_OBJECT
public:
    AlbumView(Program &program, PhotoShelf &shelf, PictureQueue &queue, QWidget *parent = nullptr);

    void show(const PhotosShown &shown);
    const PhotosShown &shown() const { return m_shown; }
    /// What is shown has changed.
    void followShelf();
    /// What is known of these has.
    void followPhotos(const QList<int> &records);

    PhotoGrid &grid() const { return *m_grid; }
    /// The records of all that is shown, in their order.
    const QList<int> &records() const;
    /// Those that are marked, in the order of the grid.
    QList<int> chosen() const;
    /// 0 where there is none.
    int current() const;
    /// Marks these, as far as they are shown, and goes to the first of them.
    void choose(const QList<int> &records);
    /// What the next command is for: those that are marked, or all that is shown.
    QList<int> chosenOrAll() const;

    /// Puts a button on the page that stands there while no picture is known at all; the first is the main
    /// one.
    void addFirstButton(QPushButton *button);
    /// Puts a button into the foot while missing pictures are shown.
    void addMissingButton(QPushButton *button);
    void setSide(int side);
    /// In which order they stand: the album's own, or the one chosen for everything else.
    PhotoAlbum::Sorting sorting() const;
    /// Chooses it for everything that is no album.
    void setSorting(PhotoAlbum::Sorting sorting);
    /// Null where no album is shown.
    const PhotoAlbum *shownAlbum() const;

signals:
    /// Other pictures are marked or shown.
    void moved();
    /// Another order was chosen: an index of `PhotoAlbum::Sorting`.
    void orderChosen(int sorting);

protected:
    void refresh() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeTools();
    QList<int> found();
    void showOrder();
    void showTitle();
    void showCount();
    void showEmptiness();

    Program &m_program;
    PhotoShelf &m_shelf;
    PhotoSearch m_search;
    PhotosShown m_shown;
    PhotoTiles *m_tiles;
    PhotoGrid *m_grid;
    QComboBox *m_order;
    QSlider *m_size;
    QStackedLayout *m_stack;
    QPushButton *m_find = nullptr;
    EmptyPage *m_first;   ///< no picture is known
    EmptyPage *m_nothing; ///< none is in what is shown
};
