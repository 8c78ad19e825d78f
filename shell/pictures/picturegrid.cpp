// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturegrid.h"

#include "shell/pictures/picturetiledelegate.h"
#include "shell/pictures/picturetiles.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace {
constexpr int wheelStep = 16;
} // namespace

PictureGrid::PictureGrid(PictureQueue &queue, QWidget *parent)
    : QListView(parent)
    , m_queue(queue)
    , m_seen(new QTimer(this))
{
    setItemDelegate(new PictureTileDelegate(this));
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setSelectionRectVisible(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // or the tiles would grow and shrink with the list
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    m_seen->setSingleShot(true);
    connect(m_seen, &QTimer::timeout, this, &PictureGrid::readSeen);
    connect(&queue, &PictureQueue::arrived, viewport(), qOverload<>(&QWidget::update));
    connect(&queue, &PictureQueue::failed, viewport(), qOverload<>(&QWidget::update));
    connect(this, &QListView::doubleClicked, this,
            [this](const QModelIndex &row) { emit opened(row.row()); });
}

void PictureGrid::setTiles(PictureTiles *tiles)
{
    m_tiles = tiles;
    setModel(tiles);
    connect(tiles, &QAbstractItemModel::modelReset, this, &PictureGrid::startOver);
    connect(tiles, &QAbstractItemModel::dataChanged, m_seen, qOverload<>(&QTimer::start));
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &PictureGrid::choiceChanged);
    startOver();
}

void PictureGrid::startOver()
{
    setMarking(false);
    for (int row = 0; row < m_tiles->rowCount(); ++row)
        m_queue.want(m_tiles->picture(row), PictureQueue::Priority::Rest);
    m_seen->start(); // takes those in sight out of the rest again
}

void PictureGrid::setSide(int side)
{
    side = std::clamp(side, leastSide, greatestSide);
    if (side == m_side)
        return;
    m_side = side;
    fitTiles();
    scrollTo(currentIndex(), PositionAtCenter);
}

int PictureGrid::columns() const
{
    const int least = PictureTileDelegate::tileSize(m_side).width();
    return std::max(1, (viewport()->width() - 1) / least);
}

int PictureGrid::rowsInSight() const
{
    return viewport()->height() / std::max(1, gridSize().height()) + 2;
}

/// The tiles share the width that is left over.
void PictureGrid::fitTiles()
{
    const int width = (viewport()->width() - 1) / columns();
    setGridSize({width, PictureTileDelegate::tileSize(m_side).height()});
    m_queue.setSide(qRound(m_side * devicePixelRatioF()));
    verticalScrollBar()->setSingleStep(gridSize().height() / 3);
    m_seen->start();
}

PictureQueue::Kept PictureGrid::kept(int row) const
{
    return m_queue.kept(m_tiles->picture(row).id);
}

/// Hands what is in sight to the queue, and one screen on either side of it.
void PictureGrid::readSeen()
{
    if (!m_tiles || !isVisible())
        return;
    const int count = m_tiles->rowCount();
    const int perScreen = rowsInSight() * columns();
    const int first = verticalScrollBar()->value() / std::max(1, gridSize().height()) * columns();
    const int last = std::min(count, first + perScreen);
    std::vector<WantedPicture> seen;
    std::vector<WantedPicture> next;
    seen.reserve(std::size_t(std::max(0, last - first)));
    next.reserve(2 * std::size_t(perScreen));
    for (int row = first; row < last; ++row)
        seen.push_back(m_tiles->picture(row));
    for (int row = last; row < std::min(count, last + perScreen); ++row)
        next.push_back(m_tiles->picture(row));
    for (int row = std::min(first, count) - 1; row >= std::max(0, first - perScreen); --row)
        next.push_back(m_tiles->picture(row));
    m_queue.show(seen, next);
}

QList<int> PictureGrid::chosenRows() const
{
    QList<int> rows;
    if (!selectionModel())
        return rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::ranges::sort(rows);
    return rows;
}

void PictureGrid::choose(const QList<int> &rows)
{
    QItemSelection chosen;
    for (const int row : rows)
        chosen.select(m_tiles->index(row), m_tiles->index(row));
    const QModelIndex first = rows.isEmpty() ? QModelIndex() : m_tiles->index(rows.first());
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    setMarking(rows.size() > 1);
    selectionModel()->select(chosen, QItemSelectionModel::ClearAndSelect);
    if (first.isValid())
        scrollTo(first);
}

bool PictureGrid::event(QEvent *event)
{
    if (event->type() == QEvent::Show)
        m_seen->start();
    return QListView::event(event);
}

void PictureGrid::resizeEvent(QResizeEvent *event)
{
    fitTiles();
    QListView::resizeEvent(event);
}

void PictureGrid::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    m_seen->start();
}

void PictureGrid::keyPressEvent(QKeyEvent *event)
{
    const bool isPlain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (currentIndex().isValid())
            emit opened(currentIndex().row());
        return;
    case Qt::Key_Space:
        mark();
        return;
    case Qt::Key_Escape:
        m_isMarking ? endMarking() : QListView::keyPressEvent(event);
        return;
    default:
        if (isPlain && event->key() >= Qt::Key_0 && event->key() <= Qt::Key_9)
            emit digitTyped(event->key() - Qt::Key_0);
        else
            QListView::keyPressEvent(event);
    }
}

/// The first one marks the current picture and keeps it so while the arrow keys go on.
void PictureGrid::mark()
{
    if (!currentIndex().isValid())
        return;
    const bool isFirst = !m_isMarking && selectionModel()->selectedIndexes().size() <= 1;
    setMarking(true);
    selectionModel()->select(currentIndex(),
                             isFirst ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Toggle);
    if (!selectionModel()->hasSelection())
        setMarking(false);
    emit choiceChanged(); // also where the first was chosen before it was marked
}

void PictureGrid::setMarking(bool isMarking)
{
    if (std::exchange(m_isMarking, isMarking) != isMarking)
        emit markingChanged();
}

void PictureGrid::endMarking()
{
    choose({currentIndex().row()});
    emit choiceChanged();
}

/// A letter goes to another picture, which is then the only one that is chosen.
void PictureGrid::keyboardSearch(const QString &letters)
{
    setMarking(false);
    QListView::keyboardSearch(letters);
}

void PictureGrid::mousePressEvent(QMouseEvent *event)
{
    setMarking(false);
    QListView::mousePressEvent(event);
}

void PictureGrid::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QListView::wheelEvent(event);
        return;
    }
    setSide(m_side + (event->angleDelta().y() > 0 ? wheelStep : -wheelStep));
    emit sideChanged(m_side);
    event->accept();
}

QModelIndex PictureGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int count = m_tiles->rowCount();
    if (count == 0)
        return {};
    const int now = currentIndex().row();
    if (now < 0)
        return m_tiles->index(0);
    const int page = std::max(1, viewport()->height() / std::max(1, gridSize().height())) * columns();
    const int inRow = now % columns();
    // In the last row there may be nothing below: the last picture is what comes nearest.
    const auto below = [&](int by) {
        const bool isLastRow = now / columns() == (count - 1) / columns();
        return now + by < count ? now + by : isLastRow ? now : count - 1;
    };
    const auto above = [&](int by) { return now >= by ? now - by : inRow; };
    switch (action) {
    case MoveLeft:
    case MovePrevious:
        return m_tiles->index(std::max(0, now - 1));
    case MoveRight:
    case MoveNext:
        return m_tiles->index(std::min(count - 1, now + 1));
    case MoveUp:
        return m_tiles->index(above(columns()));
    case MoveDown:
        return m_tiles->index(below(columns()));
    case MovePageUp:
        return m_tiles->index(above(page));
    case MovePageDown:
        return m_tiles->index(below(page));
    case MoveHome:
        return m_tiles->index(0);
    case MoveEnd:
        return m_tiles->index(count - 1);
    }
    return {};
}

QItemSelectionModel::SelectionFlags PictureGrid::selectionCommand(const QModelIndex &index,
                                                                  const QEvent *event) const
{
    if (m_isMarking && event && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<const QKeyEvent *>(event);
        if (!(key->modifiers() & Qt::ShiftModifier))
            return QItemSelectionModel::NoUpdate;
    }
    return QListView::selectionCommand(index, event);
}

void PictureGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    emit choiceChanged();
}
