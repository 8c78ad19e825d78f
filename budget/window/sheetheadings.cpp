// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/sheetheadings.h"

#include <QAbstractItemView>
#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int leastHeadHeight = 32;
constexpr int leastNumberWidth = 38;
} // namespace

SheetHeadings::SheetHeadings(Qt::Orientation orientation, QWidget *parent, int amountInset)
    : QHeaderView(orientation, parent)
    , m_amountInset(amountInset)
{
    setFont(TypeScale::body());
    setSectionsClickable(true);
    setHighlightSections(true);
    setSectionResizeMode(Fixed);
    setMinimumSectionSize(1);
    setRows(m_rows);
}

void SheetHeadings::setRows(SheetLook::Rows rows)
{
    m_rows = rows;
    if (orientation() == Qt::Vertical)
        setDefaultSectionSize(SheetLook::rowHeight(rows));
}

QSize SheetHeadings::sizeHint() const
{
    const QFontMetrics metrics(TypeScale::strong());
    if (orientation() == Qt::Horizontal && m_rows == SheetLook::Rows::Dense)
        return {0, SheetLook::rowHeight(m_rows) + 2};
    if (orientation() == Qt::Horizontal)
        return {0, std::max(leastHeadHeight, metrics.height() + 12)};
    return {std::max(leastNumberWidth, metrics.horizontalAdvance(u"50"_s) + 2 * SheetLook::inset), 0};
}

void SheetHeadings::paintSection(QPainter *painter, const QRect &rect, int section) const
{
    const Theme &theme = Theme::of(this);
    painter->fillRect(rect, theme.head);
    painter->setPen(theme.line);
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    painter->drawLine(rect.topRight(), rect.bottomRight());
    const auto *view = qobject_cast<const QAbstractItemView *>(parentWidget());
    const QModelIndex current = view->currentIndex();
    const bool isRow = orientation() == Qt::Vertical;
    const bool isCurrent = current.isValid() && section == (isRow ? current.row() : current.column());
    const bool isStrong = isCurrent || (!isRow && section == 0);
    painter->setFont(isStrong ? TypeScale::strong() : TypeScale::body());
    painter->setPen(isRow && !isCurrent ? theme.quiet : theme.text);
    const QVariant alignment = model()->headerData(section, orientation(), Qt::TextAlignmentRole);
    const int inset = isRow || section == 0 ? SheetLook::inset : m_amountInset;
    painter->drawText(rect.adjusted(inset, 0, -inset, 0),
                      alignment.isValid() ? int(alignment.value<Qt::Alignment>()) : int(Qt::AlignCenter),
                      model()->headerData(section, orientation(), Qt::DisplayRole).toString());
}
