// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/gridview.h"

#include "shell/look/theme.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace {

constexpr int leastWidth = 240;
constexpr int leastRowHeight = 28;
constexpr int inset = 8;
constexpr int headerHeight = 34;
constexpr int sortMarkWidth = 20;

/// The part of a cell that holds its text.
QRect textPlace(const QRect &cell)
{
    return cell.adjusted(inset, 0, -inset, 0);
}

/// Draws a cell: its text with an inset at both sides, links underlined, the current cell with its mark.
class CellDelegate final : public QStyledItemDelegate
{
public:
    explicit CellDelegate(GridView *view)
        : QStyledItemDelegate(view)
        , m_view(view)
    {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const Theme &theme = Theme::of(cell.widget);
        const QModelIndex current = m_view->currentIndex();
        const bool isCurrent = index == current;
        if (isCurrent)
            painter->fillRect(cell.rect, theme.mark);
        else if (current.isValid() && current.row() == index.row())
            painter->fillRect(cell.rect, theme.soft);
        else if (cell.features & QStyleOptionViewItem::Alternate)
            painter->fillRect(cell.rect, theme.alternate);
        if (isCurrent)
            drawRim(*painter, cell.rect, theme);
        const bool isLink = index.data(m_view->linkRole()).toBool();
        QFont font = cell.font;
        font.setUnderline(isLink);
        painter->setFont(font);
        painter->setPen(isLink ? theme.accent : theme.text);
        const QRect place = textPlace(cell.rect);
        painter->drawText(place, int(cell.displayAlignment),
                          cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, place.width()));
    }

private:
    void drawRim(QPainter &painter, const QRect &cell, const Theme &theme) const
    {
        const bool hasFocus = m_view->hasFocus();
        painter.setPen(QPen(hasFocus ? theme.accent : theme.edge, hasFocus ? 2 : 1));
        const int half = hasFocus ? 1 : 0;
        painter.drawRect(cell.adjusted(half, half, -1, -1));
    }

    GridView *m_view;
};

/// Headings that are too long end in an ellipsis, which a style sheet would take from them.
class Headings final : public QHeaderView
{
public:
    explicit Headings(QWidget *parent)
        : QHeaderView(Qt::Horizontal, parent)
    {
        setSectionsClickable(true);
        setHighlightSections(false);
    }

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int section) const override
    {
        QHeaderView::initStyleOptionForIndex(option, section);
        const bool isSorted = isSortIndicatorShown() && sortIndicatorSection() == section;
        const int room = sectionSize(section) - 2 * inset - (isSorted ? sortMarkWidth : 0);
        option->text = fontMetrics().elidedText(option->text, Qt::ElideRight, room);
    }
};

} // namespace

GridView::GridView(int linkRole, QWidget *parent)
    : QTableView(parent)
    , m_linkRole(linkRole)
{
    setMinimumWidth(leastWidth);
    setItemDelegate(new CellDelegate(this));
    setAlternatingRowColors(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerItem);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setMouseTracking(true);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(rowHeight());
    verticalHeader()->setDefaultSectionSize(rowHeight());
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView *head = new Headings(this);
    setHorizontalHeader(head);
    head->setFont(TypeScale::strong());
    head->setFixedHeight(std::max(headerHeight, QFontMetrics(head->font()).height() + 12));
    head->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    head->setStretchLastSection(true);
    head->setMinimumSectionSize(120);
    head->setSortIndicator(-1, Qt::AscendingOrder);
    head->setSortIndicatorClearable(true);
    setSortingEnabled(true);
}

int GridView::rowHeight()
{
    return std::max(leastRowHeight, QFontMetrics(QApplication::font()).height() + 8);
}

bool GridView::isOnLink(QPoint place) const
{
    const QModelIndex index = indexAt(place);
    if (!index.data(m_linkRole).toBool())
        return false;
    QRect text = textPlace(visualRect(index));
    text.setWidth(std::min(text.width(), fontMetrics().horizontalAdvance(index.data().toString())));
    return text.contains(place);
}

void GridView::mousePressEvent(QMouseEvent *event)
{
    const bool isLink = event->button() == Qt::LeftButton && isOnLink(event->pos());
    m_pressedLink = isLink ? indexAt(event->pos()) : QModelIndex();
    QTableView::mousePressEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent *event)
{
    QTableView::mouseReleaseEvent(event);
    const QModelIndex pressed = m_pressedLink;
    m_pressedLink = QModelIndex();
    if (pressed.isValid() && isOnLink(event->pos()) && indexAt(event->pos()) == pressed)
        emit linkFollowed(pressed);
}

void GridView::mouseMoveEvent(QMouseEvent *event)
{
    viewport()->setCursor(isOnLink(event->pos()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QTableView::mouseMoveEvent(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTableView::mouseDoubleClickEvent(event);
    const QModelIndex index = indexAt(event->pos());
    if (index.isValid() && event->button() == Qt::LeftButton && !isOnLink(event->pos()))
        emit opened(index);
}

void GridView::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentIndex().isValid())
        emit opened(currentIndex());
    else
        QTableView::keyPressEvent(event);
}

void GridView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (!std::exchange(m_wasPainted, true))
        QMetaObject::invokeMethod(this, &GridView::firstPainted, Qt::QueuedConnection);
}

void GridView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    emit resized();
}

/// Coming back to the window chooses no cell where none was current.
void GridView::focusInEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::ActiveWindowFocusReason || currentIndex().isValid())
        QTableView::focusInEvent(event);
}

/// Tab walks through the cells of the row and out behind its last one: out behind the last row would take
/// a hundred thousand steps.
bool GridView::focusNextPrevChild(bool next)
{
    const QModelIndex current = currentIndex();
    const QModelIndex beside = current.siblingAtColumn(current.column() + (next ? 1 : -1));
    const bool isSpanned = columnSpan(current.row(), current.column()) > 1;
    if (!current.isValid() || !beside.isValid() || isSpanned)
        return QTableView::focusNextPrevChild(next);
    setCurrentIndex(beside);
    return true;
}

bool GridView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    // A text that is cut shows itself whole.
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    const QString text = index.data().toString();
    const bool isCut = fontMetrics().horizontalAdvance(text) > textPlace(visualRect(index)).width();
    QToolTip::showText(help->globalPos(), isCut ? text : QString(), this);
    return true;
}
