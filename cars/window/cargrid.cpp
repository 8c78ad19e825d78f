// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/cargrid.h"

#include "shell/controls/celldelegate.h"
#include "shell/controls/datebox.h"
#include "shell/controls/groupheadings.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QPainter>
#include <QScrollBar>

#include <algorithm>

CarGrid::CarGrid(const Program &program, const QString &name, DatePicker *picker, QWidget *parent)
    : CellGrid(parent)
{
    setObjectName(name);
    if (picker)
        cells().takeDates({program.state.dateStyle, program.clock}, picker);
    setHorizontalHeader(new GroupHeadings(this));
    setHorizontalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setPlainRows();
}

void CarGrid::setWidths(std::vector<CarColumns::Width> widths)
{
    m_widths = std::move(widths);
    fitColumns();
}

void CarGrid::putUnder(CarGrid *heads)
{
    m_heads = heads;
    heads->m_under = this;
    heads->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScrollBar *bar = heads->horizontalScrollBar();
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, bar, &QScrollBar::setValue);
    connect(bar, &QScrollBar::valueChanged, horizontalScrollBar(), &QScrollBar::setValue);
}

void CarGrid::fitColumns()
{
    const auto count = int(m_widths.size());
    if (!model() || model()->columnCount() != count || count == 0)
        return;
    const std::vector<int> widths = CarColumns::fitting(*model(), m_widths, viewport()->width());
    for (int column = 0; column < count; ++column) {
        setColumnWidth(column, widths[std::size_t(column)]);
        if (m_heads)
            m_heads->setColumnWidth(column, widths[std::size_t(column)]);
    }
    updateGeometry(); // with a bar below its rows, it is higher
}

/// The heads are a little wider than the rows with their bar, but are scrolled as far.
void CarGrid::updateGeometries()
{
    const int before = horizontalScrollBar()->value();
    CellGrid::updateGeometries();
    if (m_heads) {
        m_heads->updateGeometries();
    } else if (m_under && m_under->model()->rowCount() > 0) {
        horizontalScrollBar()->setRange(0, m_under->horizontalScrollBar()->maximum());
        horizontalScrollBar()->setValue(before);
    }
}

void CarGrid::resizeEvent(QResizeEvent *event)
{
    CellGrid::resizeEvent(event);
    if (!m_under || m_under->model()->rowCount() == 0)
        fitColumns();
}

/// Beside the rows under these heads their bar takes some of the width.
int CarGrid::roomAcross() const
{
    const bool hasRows = m_under && m_under->model()->rowCount() > 0;
    return hasRows ? std::min(viewport()->width(), m_under->viewport()->width()) : viewport()->width();
}

/// The first column then stands over those that were scrolled under it.
bool CarGrid::isScrolledSideways() const
{
    return horizontalHeader()->offset() > 0;
}

QModelIndex CarGrid::indexAt(const QPoint &place) const
{
    if (isScrolledSideways() && place.x() < columnWidth(0))
        return model()->index(rowAt(place.y()), 0, rootIndex());
    return CellGrid::indexAt(place);
}

QRect CarGrid::visualRect(const QModelIndex &index) const
{
    QRect rect = CellGrid::visualRect(index);
    if (index.column() == 0)
        rect.moveLeft(0);
    return rect;
}

void CarGrid::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    QScrollBar *bar = horizontalScrollBar();
    const int before = bar->value();
    CellGrid::scrollTo(index, hint);
    if (index.column() == 0) {
        bar->setValue(before);
        return;
    }
    if (const int cut = visualRect(index).right() + 1 - roomAcross(); cut > 0)
        bar->setValue(bar->value() + cut);
    if (const int covered = columnWidth(0) - visualRect(index).left(); covered > 0)
        bar->setValue(bar->value() - covered);
}

void CarGrid::scrollContentsBy(int dx, int dy)
{
    CellGrid::scrollContentsBy(dx, dy);
    if (dx == 0)
        return;
    viewport()->update();
    horizontalHeader()->viewport()->update();
}

void CarGrid::paintEvent(QPaintEvent *event)
{
    CellGrid::paintEvent(event);
    if (!isScrolledSideways())
        return;
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const int last = rowAt(viewport()->height() - 1);
    const int end = last < 0 ? model()->rowCount() : last + 1;
    for (int row = std::max(0, rowAt(0)); row < end; ++row)
        paintFirst(painter, option, row);
}

/// The first cell of a row, over what is scrolled under it.
void CarGrid::paintFirst(QPainter &painter, QStyleOptionViewItem &option, int row) const
{
    const QModelIndex cell = model()->index(row, 0);
    option.rect = visualRect(cell);
    option.features.setFlag(QStyleOptionViewItem::Alternate, alternatingRowColors() && row % 2 != 0);
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(cell));
    painter.fillRect(option.rect, palette().base());
    itemDelegate()->paint(&painter, option, cell);
    const QRect edges = option.rect.adjusted(0, 0, 1, 1);
    painter.setPen(Theme::of(this).line);
    painter.drawLine(edges.bottomLeft(), edges.bottomRight());
    painter.setPen(Theme::of(this).edge);
    painter.drawLine(edges.topRight(), edges.bottomRight());
}
