// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/albumpane.h"

#include "album/model/photoshelf.h"
#include "album/model/phototexts.h"
#include "album/window/albumcovers.h"
#include "album/window/phototiles.h"
#include "album/window/windowlines.h"
#include "shell/controls/bytelimit.h"
#include "shell/controls/controls.h"
#include "shell/controls/droplist.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/panerowdelegate.h"
#include "shell/controls/panerows.h"
#include "shell/controls/pastefilter.h"
#include "shell/controls/searchbox.h"
#include "shell/program/program.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastWidth = 180;
using Kind = ShelfView::Kind;
constexpr std::array views{Kind::All, Kind::NoAlbum, Kind::OnThisDay, Kind::NoDate, Kind::Missing};

// An album's row bears its number; all others are below zero.
constexpr int firstView = -1;
constexpr int yearsHeading = -101;
constexpr int albumsHeading = -102;
constexpr int years = -10000;
constexpr int decades = -20000;

int keyOf(const ShelfView &view)
{
    switch (view.kind) {
    case Kind::Album:
        return view.number;
    case Kind::Year:
        return years - view.number;
    case Kind::Decade:
        return decades - view.number;
    default:
        return firstView - int(view.kind);
    }
}

ShelfView viewOf(int key)
{
    if (key > 0)
        return {Kind::Album, key};
    if (key <= decades)
        return {Kind::Decade, decades - key};
    if (key <= years)
        return {Kind::Year, years - key};
    return {Kind(firstView - key), 0};
}

bool isHeading(int key)
{
    return key == yearsHeading || key == albumsHeading;
}

PaneRows::Row row(const ShelfView &view, const QString &name, int count)
{
    return {.key = keyOf(view),
            .name = name,
            .count = count,
            .spoken = AlbumWindowLines::viewSpoken(name, count),
            .isFixed = true,
            .isRenamable = false,
            .takesThings = false};
}

PaneRows::Row heading(int key, const QString &name, bool isOpen)
{
    return {.key = key,
            .name = name,
            .isFixed = true,
            .kind = isOpen ? PaneRows::Row::Open : PaneRows::Row::Folded,
            .isRenamable = false,
            .takesThings = false};
}

QLineEdit *makeNameBox(QWidget *parent)
{
    auto *box = named(new QLineEdit(parent), u"albumNameBox"_s);
    new PasteFilter(box, Characters::All);
    new ByteLimit(box, PhotoTexts::albumNameBytes);
    return box;
}

} // namespace

AlbumPane::AlbumPane(const Program &program, const PhotoShelf &shelf, const PictureQueue &queue,
                     const QString &thumbnails, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_shelf(shelf)
    , m_search(new SearchBox(u"photoSearch"_s, AlbumWindowLines::searchHint(), AlbumWindowLines::searchTip(),
                             this))
    , m_rows(new PaneRows(u"application/x-quillery-albums"_s, this))
    , m_list(named(new DropList(PhotoTiles::dragFormat(), this), u"albumList"_s))
    , m_covers(new AlbumCovers(shelf, queue, thumbnails, this))
    , m_count(named(makeQuietLabel({}, this), u"albumCount"_s))
    , m_layout(new QVBoxLayout(this))
{
    m_list->setRows(m_rows);
    setListRows(m_list);
    m_list->setAlternatingRowColors(false);
    m_list->setItemDelegate(new PaneRowDelegate(m_list, makeNameBox));
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_list->setAccessibleName(u"Views and albums"_s);
    m_rows->setRenamable(true);
    m_layout->setContentsMargins({});
    m_layout->setSpacing(8);
    m_layout->addWidget(m_search);
    m_layout->addWidget(new WholeRows(m_list, m_count, this), 1);
    m_search->setTarget(m_list);
    setMinimumWidth(leastWidth);
    setFocusProxy(m_list);
    connectList();
}

void AlbumPane::connectList()
{
    m_list->installEventFilter(this);
    connect(m_covers, &AlbumCovers::arrived, this,
            [this](int album) { m_rows->setPicture(album, m_covers->of(album)); });
    connect(m_search, &QLineEdit::textChanged, this, &AlbumPane::searchTyped);
    connect(m_list, &DropList::dropped, this, [this](int album, const std::vector<int> &records) {
        emit dropped(album, QList<int>(records.begin(), records.end()));
    });
    connect(m_list, &DropList::ordered, this, &AlbumPane::ordered);
    connect(m_list, &DropList::released, this, [this] { show(m_shown); }); // not what the mouse took hold of
    connect(m_rows, &PaneRows::renamed, this, &AlbumPane::renamed);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &row) {
                if (m_isFollowing && row.isValid() && m_list->selectionModel()->isSelected(row))
                    choose(row);
            });
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex &row) {
        const int key = row.data(PaneRows::keyRole).toInt();
        if (isHeading(key)) {
            fold(key);
            return;
        }
        choose(row);
        emit entered();
    });
}

void AlbumPane::choose(const QModelIndex &row)
{
    const int key = row.data(PaneRows::keyRole).toInt();
    const PhotosShown shown{viewOf(key), {}};
    if (isHeading(key) || shown == m_shown)
        return;
    clearSearch();
    show(shown);
    emit chosen(shown);
}

void AlbumPane::fold(int heading)
{
    bool &isOpen = heading == yearsHeading ? m_areYearsOpen : m_areAlbumsOpen;
    isOpen = !isOpen;
    refresh();
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    m_list->setCurrentIndex(m_rows->indexOf(heading));
}

void AlbumPane::refresh()
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    m_covers->follow(devicePixelRatioF());
    const QDate today = m_program.clock.today();
    std::vector<PaneRows::Row> rows;
    rows.reserve(std::size(views));
    for (const Kind view : views)
        rows.push_back(
            row({view, 0}, AlbumWindowLines::nameOf(view), ShelfViews::count(m_shelf, view, today)));
    const auto periods = ShelfViews::periods(m_shelf);
    if (!periods.empty())
        rows.push_back(heading(yearsHeading, AlbumWindowLines::years(), m_areYearsOpen));
    if (m_areYearsOpen) {
        for (const ShelfViews::Period &period : periods)
            rows.push_back(row(period.view, period.title, period.count));
    }
    if (!m_shelf.albums().empty())
        rows.push_back(heading(albumsHeading, AlbumWindowLines::albums(), m_areAlbumsOpen));
    if (m_areAlbumsOpen) {
        for (const PhotoAlbum &album : m_shelf.albums()) {
            PaneRows::Row line = row({Kind::Album, album.record}, album.name, m_shelf.countIn(album.record));
            line.isFixed = false;
            line.isRenamable = true;
            line.takesThings = true;
            line.picture = m_covers->of(album.record);
            rows.push_back(line);
        }
    }
    m_count->setText(AlbumWindowLines::countOfAlbums(int(m_shelf.albums().size())));
    m_rows->setRows(std::move(rows));
    show(m_shown);
}

void AlbumPane::show(const PhotosShown &shown)
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    m_shown = shown;
    const QModelIndex row = shown.isSearch() ? QModelIndex() : m_rows->indexOf(keyOf(shown.view));
    if (row.isValid())
        m_list->setCurrentIndex(row);
    else
        m_list->selectionModel()->clear();
}

void AlbumPane::searchTyped(const QString &words)
{
    if (!m_isFollowing)
        return;
    if (!m_shown.isSearch())
        m_beforeSearch = m_shown;
    const bool isOver = words.trimmed().isEmpty();
    if (isOver && !m_shown.isSearch())
        return;
    show(isOver ? m_beforeSearch : PhotosShown{{}, words.trimmed()});
    emit chosen(m_shown);
}

void AlbumPane::clearSearch()
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    m_search->clear();
}

void AlbumPane::startSearch()
{
    m_search->startAgain();
}

void AlbumPane::addButton(QPushButton *button)
{
    m_layout->addWidget(button);
}

void AlbumPane::rename(int album)
{
    if (!m_areAlbumsOpen)
        fold(albumsHeading);
    const QModelIndex row = m_rows->indexOf(album);
    m_list->setFocus();
    m_list->setCurrentIndex(row);
    m_list->edit(row);
}

/// Enter goes on in the pictures; on a heading it folds, as the arrow keys to the sides do.
bool AlbumPane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_list || event->type() != QEvent::KeyPress || !m_list->currentIndex().isValid())
        return QWidget::eventFilter(watched, event);
    const int pressed = static_cast<QKeyEvent *>(event)->key();
    const bool isEnter = pressed == Qt::Key_Return || pressed == Qt::Key_Enter;
    const QModelIndex row = m_list->currentIndex();
    const int key = row.data(PaneRows::keyRole).toInt();
    if (isHeading(key)) {
        const bool isOpen = row.data(PaneRows::kindRole).toInt() == PaneRows::Row::Open;
        if (!isEnter && pressed != Qt::Key_Space && pressed != (isOpen ? Qt::Key_Left : Qt::Key_Right))
            return QWidget::eventFilter(watched, event);
        fold(key);
        return true;
    }
    if (!isEnter)
        return QWidget::eventFilter(watched, event);
    choose(row);
    emit entered();
    return true;
}
