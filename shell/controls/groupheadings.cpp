// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/groupheadings.h"

#include "shell/controls/cellgrid.h"
#include "shell/controls/gridcell.h"
#include "shell/look/theme.h"

#include <QPainter>

#include <algorithm>

namespace {
constexpr int leastHeight = 32;
constexpr int around = 12; ///< above and below the words
} // namespace

GroupHeadings::GroupHeadings(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setFont(TypeScale::strong());
    setSectionsClickable(false);
    setHighlightSections(false);
    setSectionResizeMode(Fixed);
    setMinimumSectionSize(1);
    connect(this, &QHeaderView::sectionResized, this, &QHeaderView::geometriesChanged);
}

int GroupHeadings::leastWidth(const QAbstractItemModel &model, int column)
{
    const QFontMetrics metrics(TypeScale::strong());
    const QString heading = model.headerData(column, Qt::Horizontal).toString();
    int least = metrics.horizontalAdvance(heading);
    for (qsizetype blank = heading.indexOf(u' '); blank > 0; blank = heading.indexOf(u' ', blank + 1)) {
        const int first = metrics.horizontalAdvance(heading.first(blank));
        const int second = metrics.horizontalAdvance(heading.sliced(blank + 1));
        least = std::min(least, std::max(first, second));
    }
    return least + CellGrid::inset + freeInset + 2;
}

Qt::Alignment GroupHeadings::alignment(int section) const
{
    const QVariant alignment = model()->headerData(section, orientation(), Qt::TextAlignmentRole);
    return alignment.isValid() ? alignment.value<Qt::Alignment>() : Qt::AlignVCenter;
}

QRect GroupHeadings::wordsPlace(const QRect &rect, int section) const
{
    const bool isRight = alignment(section).testFlag(Qt::AlignRight);
    return rect.adjusted(isRight ? freeInset : CellGrid::inset, 0, isRight ? -CellGrid::inset : -freeInset,
                         0);
}

/// Whether a heading has no room in one line.
bool GroupHeadings::isNarrow() const
{
    const QFontMetrics metrics(TypeScale::strong());
    for (int section = 0; section < count(); ++section) {
        const QString words = model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
        const QRect place = wordsPlace(QRect(0, 0, sectionSize(section), 1), section);
        if (words.contains(u' ') && metrics.horizontalAdvance(words) > place.width())
            return true;
    }
    return false;
}

QString GroupHeadings::groupOf(int section) const
{
    if (section < 0 || section >= count())
        return {};
    return model()->headerData(section, Qt::Horizontal, GridCell::groupRole).toString();
}

bool GroupHeadings::hasGroups() const
{
    for (int section = 0; section < count(); ++section) {
        if (!groupOf(section).isEmpty())
            return true;
    }
    return false;
}

QSize GroupHeadings::sizeHint() const
{
    const QFontMetrics metrics(TypeScale::strong());
    const int lines = (isNarrow() ? 2 : 1) + (hasGroups() ? 1 : 0);
    return {0, std::max(leastHeight, metrics.height() * lines + around)};
}

/// The part of its group's heading that lies over `section`, with a line under the group; in a word where the
/// group is narrower than its heading.
void GroupHeadings::paintGroup(QPainter *painter, const QRect &rect, int section) const
{
    const QString group = groupOf(section);
    if (group.isEmpty())
        return;
    int first = section;
    int last = section;
    while (groupOf(first - 1) == group)
        --first;
    while (groupOf(last + 1) == group)
        ++last;
    const QFontMetrics metrics(TypeScale::label());
    const int left = rect.left() - sectionPosition(section) + sectionPosition(first);
    const int width = sectionPosition(last) + sectionSize(last) - sectionPosition(first);
    const QRect place = QRect(left, rect.top() + around / 4, width, metrics.height() + 2)
                            .adjusted(CellGrid::inset, 0, -CellGrid::inset, 0);
    const bool isNarrow = metrics.horizontalAdvance(group) > place.width();
    const QString shorter = model()->headerData(section, orientation(), GridCell::shortGroupRole).toString();
    const QString &words = isNarrow && !shorter.isEmpty() ? shorter : group;
    painter->save();
    painter->setClipRect(rect);
    painter->setFont(TypeScale::label());
    painter->setPen(Theme::of(this).quiet);
    painter->drawText(place, Qt::AlignCenter | Qt::TextSingleLine,
                      metrics.elidedText(words, Qt::ElideRight, place.width()));
    painter->setPen(Theme::of(this).edge);
    painter->drawLine(place.bottomLeft(), place.bottomRight());
    painter->restore();
}

void GroupHeadings::paintEvent(QPaintEvent *event)
{
    QHeaderView::paintEvent(event);
    if (offset() <= 0 || !m_firstStays)
        return;
    QPainter painter(viewport());
    const QRect first(0, 0, sectionSize(0), height());
    paintWords(&painter, first, 0);
    painter.setPen(Theme::of(this).edge);
    painter.drawLine(first.topRight(), first.bottomRight());
}

void GroupHeadings::paintSection(QPainter *painter, const QRect &rect, int section) const
{
    paintWords(painter, rect, section);
    paintGroup(painter, rect, section);
}

void GroupHeadings::paintWords(QPainter *painter, const QRect &rect, int section) const
{
    const Theme &theme = Theme::of(this);
    painter->fillRect(rect, theme.head);
    painter->setPen(theme.line);
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    painter->setFont(TypeScale::strong());
    painter->setPen(theme.text);
    QRect place = wordsPlace(rect, section);
    if (hasGroups())
        place.setTop(place.bottom() - QFontMetrics(TypeScale::strong()).height() * (isNarrow() ? 2 : 1) -
                     around / 4);
    painter->drawText(place, int(alignment(section)) | Qt::TextWordWrap,
                      model()->headerData(section, orientation(), Qt::DisplayRole).toString());
}
