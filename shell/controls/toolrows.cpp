// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/toolrows.h"

#include <QToolButton>

#include <algorithm>

namespace {

constexpr int gap = 4;
constexpr QMargins barMargins(9, 4, 9, 5);
constexpr QMargins tallBarMargins(4, 4, 4, 4);
constexpr int tallPadding = 4;

const QToolButton *buttonOf(const QLayoutItem *item)
{
    return qobject_cast<const QToolButton *>(const_cast<QLayoutItem *>(item)->widget());
}

bool isButton(const QLayoutItem *item)
{
    return buttonOf(item);
}

} // namespace

ToolRows::ToolRows(Qt::Orientation orientation, QWidget *parent)
    : QLayout(parent)
    , m_orientation(orientation)
{
    setTall(false);
}

ToolRows::~ToolRows()
{
    while (QLayoutItem *item = takeAt(0))
        delete item;
}

void ToolRows::setTall(bool isTall)
{
    setContentsMargins(isTall ? tallBarMargins : barMargins);
}

void ToolRows::setEqualWidths(int maximum)
{
    m_maximumWidth = maximum;
    invalidate();
}

void ToolRows::setOneRow(bool isOneRow)
{
    if (isOneRow == m_isOneRow)
        return;
    m_isOneRow = isOneRow;
    invalidate();
}

void ToolRows::insert(qsizetype index, QWidget *widget)
{
    addChildWidget(widget);
    m_items.insert(index < 0 ? m_items.size() : index, new QWidgetItem(widget));
    invalidate();
}

qsizetype ToolRows::countInRow(const QList<QWidget *> &widgets, const QWidget *last) const
{
    const int room = contentsRect().width();
    const int lastWidth = leastWidth(last);
    qsizetype fitting = 0;
    int end = 0;
    for (qsizetype i = 0; i < widgets.size(); ++i) {
        end += (i > 0 ? gapWidth() : 0) + leastWidth(widgets[i]);
        if (end + gapWidth() + lastWidth <= room)
            fitting = i + 1;
    }
    return end <= room ? widgets.size() : fitting;
}

void ToolRows::invalidate()
{
    m_widest = -1;
    QLayout::invalidate();
}

QLayoutItem *ToolRows::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

void ToolRows::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    place(rect, Move);
}

QSize ToolRows::sizeHint() const
{
    QSize size;
    const QList<QLayoutItem *> items = shownItems();
    const bool isHorizontal = m_orientation == Qt::Horizontal;
    const int gaps = (isHorizontal ? gapWidth() : gap) * std::max(0, int(items.size()) - 1);
    for (const QLayoutItem *item : items) {
        const QSize hint = item->sizeHint();
        size = isHorizontal ? QSize(size.width() + widthOf(item, 0), std::max(size.height(), hint.height()))
                            : QSize(std::max(size.width(), hint.width()), size.height() + hint.height());
    }
    size += isHorizontal ? QSize(gaps, 0) : QSize(0, gaps);
    return size.grownBy(contentsMargins());
}

QSize ToolRows::minimumSize() const
{
    QSize size(0, 0);
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->sizeHint());
    const QSize whole = sizeHint();
    return m_orientation == Qt::Horizontal ? size.grownBy(contentsMargins())
                                           : QSize(whole.width(), whole.height());
}

QList<QLayoutItem *> ToolRows::shownItems() const
{
    QList<QLayoutItem *> shown;
    std::ranges::copy_if(m_items, std::back_inserter(shown),
                         [](const QLayoutItem *item) { return !item->isEmpty(); });
    return shown;
}

/// Equal buttons stand close: each has room of its own.
int ToolRows::gapWidth() const
{
    return m_maximumWidth > 0 ? 0 : gap;
}

/// With equal widths the widest button decides, and `room` for each, if there is more.
int ToolRows::widthOf(const QLayoutItem *item, int room) const
{
    if (m_maximumWidth == 0 || !isButton(item))
        return item->sizeHint().width();
    return std::max(widestWord(), std::min(room, m_maximumWidth));
}

int ToolRows::leastWidth(const QWidget *widget) const
{
    return m_maximumWidth > 0 && qobject_cast<const QToolButton *>(widget) ? widestWord()
                                                                           : widget->sizeHint().width();
}

/// Measured once for each change of the items: a layout asks for it again and again.
int ToolRows::widestWord() const
{
    if (m_widest < 0) {
        m_widest = 0;
        for (const QLayoutItem *item : m_items)
            if (const auto *button = buttonOf(item))
                m_widest = std::max(m_widest, button->fontMetrics().horizontalAdvance(button->text()) +
                                                  2 * tallPadding);
    }
    return m_widest;
}

/// The width that each button could have if all stood in one row.
int ToolRows::roomForEach(const QList<QLayoutItem *> &items, int width) const
{
    int buttons = 0;
    for (const QLayoutItem *item : items) {
        if (isButton(item))
            ++buttons;
        else
            width -= item->sizeHint().width();
    }
    return buttons > 0 ? (width - gapWidth() * (int(items.size()) - 1)) / buttons : 0;
}

/// The height that the items take within `rect`.
int ToolRows::place(const QRect &rect, Action action) const
{
    const QRect area = rect.marginsRemoved(contentsMargins());
    return (m_orientation == Qt::Horizontal ? placeRows(area, action) : placeColumn(area, action)) -
           rect.y() + contentsMargins().bottom();
}

int ToolRows::placeColumn(const QRect &area, Action action) const
{
    int y = area.y();
    for (QLayoutItem *item : m_items) {
        const QSize size(area.width(), item->sizeHint().height());
        if (action == Move)
            item->setGeometry(QRect(QPoint(area.x(), y), size));
        y += size.height() + gap;
    }
    return y - gap;
}

/// A separator that would begin or end a row is not drawn.
int ToolRows::placeRows(const QRect &area, Action action) const
{
    const QList<QLayoutItem *> items = shownItems();
    const int room = m_maximumWidth > 0 ? roomForEach(items, area.width()) : 0;
    const int rowHeight = tallest();
    int x = area.x(), y = area.y();
    for (qsizetype i = 0; i < items.size(); ++i) {
        QLayoutItem *item = items[i];
        QSize size(widthOf(item, room), rowHeight);
        int end = x + size.width();
        if (!isButton(item) && i + 1 < items.size())
            end += gapWidth() + widthOf(items[i + 1], room);
        if (x > area.x() && end > area.x() + area.width() && !m_isOneRow) {
            x = area.x();
            y += rowHeight + gap;
        }
        if (!isButton(item) && x == area.x())
            size = QSize(0, 0);
        if (action == Move)
            item->setGeometry(QRect(QPoint(x, y), size));
        if (!size.isEmpty())
            x += size.width() + gapWidth();
    }
    return y + rowHeight;
}

int ToolRows::tallest() const
{
    int height = 0;
    for (const QLayoutItem *item : m_items)
        height = std::max(height, item->sizeHint().height());
    return height;
}
