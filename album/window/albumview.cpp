// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/albumview.h"

#include "album/model/photoshelf.h"
#include "album/window/photogrid.h"
#include "album/window/phototiles.h"
#include "album/window/windowlines.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/emptypage.h"
#include "shell/controls/titleline.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSettings>
#include <QSlider>
#include <QStackedLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int sliderWidth = 120;
constexpr int narrowSliderWidth = 64;
constexpr int narrowWidth = 440;
const QString sideKey = u"Windows/PhotoVIEW1/side"_s;
const QString sortingKey = u"Windows/PhotoVIEW1/sorting"_s;
} // namespace

AlbumView::AlbumView(Program &program, PhotoShelf &shelf, PictureQueue &queue, QWidget *parent)
    : TitledView(u"photos"_s, parent)
    , m_program(program)
    , m_shelf(shelf)
    , m_search(shelf)
    , m_tiles(new PhotoTiles(program, shelf, queue, this))
    , m_grid(named(new PhotoGrid(queue, m_tiles), u"photoGrid"_s))
    , m_order(named(new QComboBox(this), u"photoOrder"_s))
    , m_size(named(new QSlider(Qt::Horizontal, this), u"photoSize"_s))
    , m_stack(new QStackedLayout)
    , m_first(new EmptyPage("photo"_L1, AlbumWindowLines::noPictures(), AlbumWindowLines::theyStay()))
    , m_nothing(new EmptyPage("photo"_L1, {}, {}))
{
    m_grid->setAccessibleName(u"Pictures"_s);
    m_grid->setContextMenuPolicy(Qt::CustomContextMenu);
    titleLine().addAtRight(makeTools());
    auto *places = new QWidget(this);
    places->setLayout(m_stack);
    m_stack->setContentsMargins({});
    m_stack->addWidget(m_grid);
    m_stack->addWidget(m_first);
    m_stack->addWidget(m_nothing);
    addContent(places, 1);
    connect(m_grid, &PictureGrid::choiceChanged, this, &AlbumView::showCount);
    connect(m_grid, &PictureGrid::choiceChanged, this, &AlbumView::moved);
    connect(m_grid, &PictureGrid::sideChanged, this, &AlbumView::setSide);
    setSide(program.store.value(sideKey, PictureGrid::usualSide).toInt());
    setFocusProxy(m_grid);
}

QWidget *AlbumView::makeTools()
{
    auto *tools = new QWidget(this);
    auto *row = new QHBoxLayout(tools);
    row->setContentsMargins({});
    row->setSpacing(12);
    m_order->addItems({u"By Hand"_s, u"By Day"_s, u"By Name"_s});
    m_order->setAccessibleName(u"Order"_s);
    m_size->setRange(PictureGrid::leastSide, PictureGrid::greatestSide);
    m_size->setSingleStep(16);
    m_size->setPageStep(48);
    m_size->setFixedWidth(sliderWidth);
    m_size->setAccessibleName(u"Size of the pictures"_s);
    m_size->setToolTip(u"Size of the pictures"_s);
    row->addWidget(m_order);
    row->addWidget(m_size);
    connect(m_size, &QSlider::valueChanged, this, &AlbumView::setSide);
    connect(m_order, &QComboBox::activated, this, &AlbumView::orderChosen);
    return tools;
}

/// In a narrow window the title needs the room more than the slider does.
void AlbumView::resizeEvent(QResizeEvent *event)
{
    TitledView::resizeEvent(event);
    m_size->setFixedWidth(event->size().width() < narrowWidth ? narrowSliderWidth : sliderWidth);
}

void AlbumView::setSide(int side)
{
    m_grid->setSide(side);
    m_size->setValue(m_grid->side());
    m_program.store.setValue(sideKey, m_grid->side());
}

void AlbumView::setSorting(PhotoAlbum::Sorting sorting)
{
    m_program.store.setValue(sortingKey, int(sorting));
    followShelf();
}

/// An album has an order of its own; everything else has the one that was chosen last.
PhotoAlbum::Sorting AlbumView::sorting() const
{
    if (const PhotoAlbum *album = shownAlbum())
        return album->sorting;
    const int stored = m_program.store.value(sortingKey, int(PhotoAlbum::Sorting::ByDate)).toInt();
    return stored == int(PhotoAlbum::Sorting::ByName) ? PhotoAlbum::Sorting::ByName
                                                      : PhotoAlbum::Sorting::ByDate;
}

const PhotoAlbum *AlbumView::shownAlbum() const
{
    return m_shown.isOf(ShelfView::Kind::Album) ? m_shelf.album(m_shown.view.number) : nullptr;
}

void AlbumView::show(const PhotosShown &shown)
{
    const bool isAnother = shown != m_shown;
    m_shown = shown;
    if (isAnother)
        m_grid->choose({}); // another view begins with its first picture
    refresh();
    if (m_tiles->rowCount() > 0 && chosen().isEmpty())
        m_grid->choose({0});
    if (isAnother)
        m_grid->scrollToTop();
    emit moved();
}

void AlbumView::followShelf()
{
    refresh(); // also out of sight: the large picture goes through the same list
}

void AlbumView::followPhotos(const QList<int> &records)
{
    m_tiles->follow(records);
}

/// The records of what is shown.
QList<int> AlbumView::found()
{
    const QDate today = m_program.clock.today();
    if (!m_shown.isSearch())
        return ShelfViews::pictures(m_shelf, m_shown.view, sorting(), today);
    QList<int> found = m_search.pictures(m_shown.words, m_program.state.dateStyle, today);
    ShelfViews::sort(m_shelf, found, sorting());
    return found;
}

void AlbumView::refresh()
{
    const QList<int> marked = chosen();
    const int now = current();
    const int row = std::max(0, m_grid->currentIndex().row());
    const bool isSeen = m_grid->viewport()->rect().intersects(m_grid->visualRect(m_grid->currentIndex()));
    const int scrolled = m_grid->verticalScrollBar()->value();
    if (m_tiles->setRecords(found())) {
        choose(marked);
        if (chosen().isEmpty() && m_tiles->rowCount() > 0 && now != 0)
            m_grid->choose({std::min(row, m_tiles->rowCount() - 1)}); // the next one, where it has left
        if (!isSeen) // whoever has scrolled away looks at something else
            m_grid->verticalScrollBar()->setValue(scrolled);
        emit moved();
    }
    m_grid->setArrangeable(sorting() == PhotoAlbum::Sorting::ByHand && m_shelf.whyLocked().isEmpty());
    showOrder();
    showTitle();
    showEmptiness();
}

void AlbumView::showOrder()
{
    const bool isAlbum = shownAlbum();
    m_order->setItemData(int(PhotoAlbum::Sorting::ByHand), isAlbum ? QVariant() : QVariant(0),
                         Qt::UserRole - 1); // only an album can have an order of its own
    m_order->setCurrentIndex(int(sorting()));
}

void AlbumView::showTitle()
{
    const QString title =
        AlbumWindowLines::title(m_shown, shownAlbum(), m_program.clock.today(), m_program.state.dateStyle);
    titleLine().setTitle(title, title); // in smaller letters where it is narrow
    showCount();
}

void AlbumView::showCount()
{
    const bool areMissing = m_shown.isOf(ShelfView::Kind::Missing) && m_tiles->rowCount() > 0;
    if (m_find && m_find->isVisibleTo(this) != areMissing) {
        m_find->setVisible(areMissing);
        foot().rearrange();
    }
    foot().setWords(AlbumWindowLines::count(int(chosen().size()), m_tiles->rowCount(), m_grid->isMarking()));
}

void AlbumView::showEmptiness()
{
    const bool isEmpty = m_tiles->rowCount() == 0;
    const bool isFirst = m_shelf.photos().empty() && !m_shown.isOf(ShelfView::Kind::Album);
    if (isEmpty)
        m_nothing->setWords(AlbumWindowLines::emptiness(m_shown), AlbumWindowLines::emptyLine(m_shown));
    QWidget *shown = !isEmpty ? static_cast<QWidget *>(m_grid) : isFirst ? m_first : m_nothing;
    m_stack->setCurrentWidget(shown);
    for (QWidget *page : {static_cast<QWidget *>(m_first), static_cast<QWidget *>(m_nothing)}) {
        // What is out of sight asks for no height.
        page->setSizePolicy(QSizePolicy::Preferred,
                            page == shown ? QSizePolicy::Preferred : QSizePolicy::Ignored);
    }
    m_order->parentWidget()->setVisible(!isEmpty);
    setFocusProxy(shown == m_nothing ? m_grid : shown);
}

const QList<int> &AlbumView::records() const
{
    return m_tiles->records();
}

QList<int> AlbumView::chosen() const
{
    return m_grid->chosenRecords();
}

int AlbumView::current() const
{
    return m_tiles->recordAt(m_grid->currentIndex().row());
}

void AlbumView::choose(const QList<int> &records)
{
    QList<int> rows;
    for (const int record : records) {
        if (const int row = m_tiles->rowOf(record); row >= 0)
            rows.append(row);
    }
    m_grid->choose(rows);
}

QList<int> AlbumView::chosenOrAll() const
{
    const QList<int> marked = chosen();
    return marked.size() > 1 ? marked : records();
}

void AlbumView::addMissingButton(QPushButton *button)
{
    m_find = button;
    foot().addLeft(button);
    showCount();
}

void AlbumView::addFirstButton(QPushButton *button)
{
    m_first->addButton(button);
}
