// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/twolinedelegate.h"

#include "shell/look/theme.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int lineGap = 2;

QFontMetrics titleMetrics()
{
    return QFontMetrics(TypeScale::strong());
}

QFontMetrics wordMetrics()
{
    return QFontMetrics(TypeScale::label());
}

int signRoom(const QModelIndex &index, int room)
{
    return index.data(TwoLineDelegate::signRole).toInt() != TwoLineDelegate::NoSign ? room : 0;
}

bool isSelected(const QStyleOptionViewItem &row)
{
    return row.state & QStyle::State_Selected;
}

} // namespace

int TwoLineDelegate::linesHeight()
{
    return titleMetrics().height() + lineGap + wordMetrics().height();
}

int TwoLineDelegate::neededWidth(const QModelIndex &index)
{
    const QString shorter = index.data(shorterRole).toString();
    const QString words = shorter.isEmpty() ? index.data(wordsRole).toString() : shorter;
    return std::max(titleMetrics().horizontalAdvance(index.data().toString()),
                    wordMetrics().horizontalAdvance(words) + signRoom(index, signSize + signGap));
}

void TwoLineDelegate::paintSign(QPainter *painter, QLatin1StringView icon, const QRect &place,
                                const QStyleOptionViewItem &row)
{
    Icons::icon(icon, Theme::of(row.widget).scheme)
        .paint(painter, place, Qt::AlignCenter, isSelected(row) ? QIcon::Selected : QIcon::Normal);
}

QRect TwoLineDelegate::linesPlace(const QRect &row, const QModelIndex & /*index*/) const
{
    return row.adjusted(inset, 0, -inset, 0);
}

QSize TwoLineDelegate::sizeHint(const QStyleOptionViewItem & /*option*/, const QModelIndex & /*index*/) const
{
    return {120, linesHeight() + 12};
}

void TwoLineDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const Theme &theme = Theme::of(row.widget);
    if (isSelected(row))
        painter->fillRect(row.rect, theme.accent);
    else if (row.state & QStyle::State_MouseOver)
        painter->fillRect(row.rect, theme.soft);
    const QFontMetrics metrics = titleMetrics();
    const bool hasWords = !index.data(wordsRole).toString().isEmpty();
    const QRect lines = linesPlace(row.rect, index);
    QRect title = lines.adjusted(0, 0, -besideTitle(index), 0);
    title.setTop(row.rect.center().y() - (hasWords ? linesHeight() : metrics.height()) / 2);
    title.setHeight(metrics.height());
    painter->setPen(isSelected(row) ? theme.onAccent : theme.text);
    painter->setFont(TypeScale::strong());
    painter->drawText(title, Qt::AlignLeft | Qt::AlignTop,
                      metrics.elidedText(index.data().toString(), Qt::ElideRight, title.width()));
    if (hasWords)
        paintWords(
            painter, row, index,
            {lines.left(), title.top() + metrics.height() + lineGap, lines.width(), wordMetrics().height()});
    paintBeside(painter, row, index, title);
}

void TwoLineDelegate::paintWords(QPainter *painter, const QStyleOptionViewItem &row, const QModelIndex &index,
                                 QRect place) const
{
    const Theme &theme = Theme::of(row.widget);
    QColor ink = theme.quiet;
    if (const int sign = index.data(signRole).toInt(); sign != NoSign) {
        const bool isOver = sign == Overdue;
        const QRect mark(place.left(), place.center().y() - signSize / 2 + 1, signSize, signSize);
        paintSign(painter, isOver ? "overdue"_L1 : "due"_L1, mark, row);
        place.setLeft(mark.right() + signGap);
        ink = isOver ? theme.negative : theme.due;
    }
    painter->setPen(isSelected(row) ? theme.onAccent : ink);
    painter->setFont(TypeScale::label());
    const QString words = index.data(wordsRole).toString();
    const QString shorter = index.data(shorterRole).toString();
    const bool isWhole = shorter.isEmpty() || wordMetrics().horizontalAdvance(words) <= place.width();
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                      wordMetrics().elidedText(isWhole ? words : shorter, Qt::ElideRight, place.width()));
}

bool TwoLineDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const int room = linesPlace(option.rect, index).width();
    const QString title = index.data().toString();
    const QString words = index.data(wordsRole).toString();
    const bool isCut = index.isValid() &&
                       (titleMetrics().horizontalAdvance(title) > room - besideTitle(index) ||
                        wordMetrics().horizontalAdvance(words) > room - signRoom(index, signSize + signGap));
    QToolTip::showText(event->globalPos(), isCut ? title + u'\n' + words : QString(), view);
    return true;
}
