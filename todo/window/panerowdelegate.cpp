// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/panerowdelegate.h"

#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/look/theme.h"
#include "todo/window/panerows.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int inset = 8;
constexpr int gap = 8;
constexpr int signSize = 16;
constexpr int longestName = 60;
} // namespace

QSize PaneRowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width() + 2 * inset, ListRowDelegate::rowHeight()};
}

void PaneRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    const Theme &theme = Theme::of(option.widget);
    const bool isSelected = option.state & QStyle::State_Selected;
    if (isSelected)
        painter->fillRect(option.rect, theme.accent);
    else if (option.state & QStyle::State_MouseOver)
        painter->fillRect(option.rect, theme.soft);
    QRect place = option.rect.adjusted(inset, 0, -inset, 0);
    if (const int count = index.data(PaneRows::countRole).toInt(); count > 0) {
        const bool isOverdue = index.data(PaneRows::overdueRole).toBool();
        const QString words = QString::number(count);
        painter->setFont(TypeScale::label());
        painter->setPen(isSelected ? theme.onAccent : isOverdue ? theme.negative : theme.quiet);
        painter->drawText(place, Qt::AlignVCenter | Qt::AlignRight, words);
        place.setRight(place.right() - painter->fontMetrics().horizontalAdvance(words) - gap);
        if (isOverdue) {
            const QRect sign(place.right() - signSize + 2, place.center().y() - signSize / 2 + 1, signSize,
                             signSize);
            Icons::icon("overdue"_L1, theme.scheme)
                .paint(painter, sign, Qt::AlignCenter, isSelected ? QIcon::Selected : QIcon::Normal);
            place.setRight(sign.left() - gap);
        }
    }
    painter->setFont(option.font);
    painter->setPen(isSelected ? theme.onAccent : option.palette.color(QPalette::Text));
    painter->drawText(
        place, Qt::AlignVCenter | Qt::AlignLeft,
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, place.width()));
}

QWidget *PaneRowDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                       const QModelIndex &) const
{
    auto *box = named(new FieldBox(parent), u"listNameBox"_s);
    box->setFrame(false);
    box->setByteLimit(longestName);
    return box;
}
