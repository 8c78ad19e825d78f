// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carheadings.h"

#include "cars/window/cargrid.h"
#include "shell/look/theme.h"

#include <QPainter>

#include <algorithm>

namespace {
constexpr int leastHeight = 32;
constexpr int around = 12; ///< above and below the words
} // namespace

CarHeadings::CarHeadings(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setFont(TypeScale::strong());
    setSectionsClickable(false);
    setHighlightSections(false);
    setSectionResizeMode(Fixed);
    setMinimumSectionSize(1);
    connect(this, &QHeaderView::sectionResized, this, &QHeaderView::geometriesChanged);
}

/// Whether a heading has no room in one line.
bool CarHeadings::isNarrow() const
{
    const QFontMetrics metrics(TypeScale::strong());
    for (int section = 0; section < count(); ++section) {
        const QString words = model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
        if (metrics.horizontalAdvance(words) > sectionSize(section) - 2 * CarGrid::inset)
            return true;
    }
    return false;
}

QSize CarHeadings::sizeHint() const
{
    const QFontMetrics metrics(TypeScale::strong());
    return {0, std::max(leastHeight, metrics.height() * (isNarrow() ? 2 : 1) + around)};
}

void CarHeadings::paintSection(QPainter *painter, const QRect &rect, int section) const
{
    const Theme &theme = Theme::of(this);
    painter->fillRect(rect, theme.head);
    painter->setPen(theme.line);
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    painter->setFont(TypeScale::strong());
    painter->setPen(theme.text);
    const QVariant alignment = model()->headerData(section, orientation(), Qt::TextAlignmentRole);
    const QRect place = rect.adjusted(CarGrid::inset, 0, -CarGrid::inset, 0);
    const int flags = int(alignment.isValid() ? alignment.value<Qt::Alignment>() : Qt::AlignVCenter);
    painter->drawText(place, flags | Qt::TextWordWrap,
                      model()->headerData(section, orientation(), Qt::DisplayRole).toString());
}
