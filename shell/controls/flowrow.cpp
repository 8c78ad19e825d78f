// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/flowrow.h"

#include <QWidget>

#include <algorithm>

namespace {

constexpr int rowGap = 8;

} // namespace

FlowRow::FlowRow(int gap, QWidget *parent)
    : QLayout(parent)
    , m_gap(gap)
{
    setContentsMargins({});
}

FlowRow::~FlowRow()
{
    for (const QLayoutItem *item : m_items)
        delete item;
}

void FlowRow::addItem(QLayoutItem *item)
{
    m_items.push_back(item);
}

QLayoutItem *FlowRow::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[std::size_t(index)] : nullptr;
}

QLayoutItem *FlowRow::takeAt(int index)
{
    QLayoutItem *item = itemAt(index);
    if (item)
        m_items.erase(m_items.begin() + index);
    return item;
}

int FlowRow::heightForWidth(int width) const
{
    return place({0, 0, width, 0}, false);
}

QSize FlowRow::sizeHint() const
{
    int width = 0;
    int height = 0;
    for (const QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        width += (width > 0 ? m_gap : 0) + item->sizeHint().width();
        height = std::max(height, item->sizeHint().height());
    }
    return {width, height};
}

QSize FlowRow::minimumSize() const
{
    QSize least;
    for (const QLayoutItem *item : m_items) {
        if (!item->isEmpty())
            least = least.expandedTo(item->sizeHint());
    }
    return least;
}

void FlowRow::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    place(rect, true);
}

/// Row by row; gives their height.
int FlowRow::place(const QRect &rect, bool isMoved) const
{
    int top = rect.top();
    auto first = m_items.cbegin();
    while (first != m_items.cend()) {
        int width = 0;
        int height = 0;
        auto last = first;
        for (; last != m_items.cend(); ++last) {
            const QSize size = (*last)->isEmpty() ? QSize() : (*last)->sizeHint();
            if (size.isEmpty())
                continue;
            const int before = width > 0 ? width + m_gap : 0;
            if (width > 0 && before + size.width() > rect.width())
                break;
            width = before + size.width();
            height = std::max(height, size.height());
        }
        if (width == 0)
            break; // hidden ones alone
        top += top > rect.top() ? rowGap : 0;
        for (int left = rect.left(); first != last; ++first) {
            if ((*first)->isEmpty())
                continue;
            const QSize size = (*first)->sizeHint();
            if (isMoved)
                (*first)->setGeometry({QPoint(left, top + height - size.height()), size});
            left += size.width() + m_gap;
        }
        top += height;
    }
    return top - rect.top();
}
