// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/window/shown.h"

#include <QWidget>

class AlbumCovers;
class DropList;
class PaneRows;
class PhotoShelf;
class PictureQueue;
class QLabel;
class QPushButton;
class QVBoxLayout;
class SearchBox;
struct Program;

/// The side pane: the search, the views over all pictures, the years, and the albums in their own order.
class AlbumPane final : public QWidget
{
    Q_OBJECT
public:
    /// The covers of albums are read behind what `queue` reads.
    AlbumPane(const Program &program, const PhotoShelf &shelf, const PictureQueue &queue,
              const QString &thumbnails, QWidget *parent = nullptr);

    /// Marks what is shown. Asks nothing and says nothing.
    void show(const PhotosShown &shown);
    /// Puts a button under the list.
    void addButton(QPushButton *button);
    /// Lets the name of an album be typed over.
    void rename(int album);
    void startSearch();
    void clearSearch();
    DropList &list() const { return *m_list; }
    /// Counts and names are others.
    void refresh();

signals:
    void chosen(const PhotosShown &shown);
    /// A row was clicked, or Enter pressed on it: the work goes on in what it shows.
    void entered();
    /// Pictures were dropped onto an album.
    void dropped(int album, const QList<int> &records);
    /// An album was dragged to before another one; 0: behind the last.
    void ordered(int album, int before);
    void renamed(int album, const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectList();
    void fold(int heading);
    void choose(const QModelIndex &row);
    void searchTyped(const QString &words);

    const Program &m_program;
    const PhotoShelf &m_shelf;
    SearchBox *m_search;
    PaneRows *m_rows;
    DropList *m_list;
    AlbumCovers *m_covers;
    QLabel *m_count;
    QVBoxLayout *m_layout;
    PhotosShown m_shown;
    PhotosShown m_beforeSearch;
    bool m_areYearsOpen = false;
    bool m_areAlbumsOpen = true;
    bool m_isFollowing = true; ///< a change of the selection shows its row
};
