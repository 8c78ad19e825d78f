// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/manual/helpentry.h"

#include "shell/look/theme.h"

#include <QListView>
#include <QPainter>

namespace {

constexpr int inset = 10;
constexpr int rowHeight = 33;
constexpr int gap = 2;

QRect excerptRect(const QString &excerpt, int width)
{
    return QFontMetrics(TypeScale::label()).boundingRect(0, 0, width, 1000, Qt::TextWordWrap, excerpt);
}

} // namespace

void HelpEntryDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    const Theme &theme = Theme::of(option.widget);
    const bool isSelected = option.state & QStyle::State_Selected;
    const QString excerpt = index.data(excerptRole).toString();
    painter->save();
    if (isSelected)
        painter->fillRect(option.rect, option.palette.color(QPalette::Highlight));
    else if (option.state & QStyle::State_MouseOver)
        painter->fillRect(option.rect, theme.soft);

    QRect rest = option.rect.adjusted(inset, 0, -inset, 0);
    QRect title = rest;
    title.setHeight(rowHeight);
    painter->setFont(excerpt.isEmpty() ? TypeScale::body() : TypeScale::strong());
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(
        title, Qt::AlignLeft | Qt::AlignVCenter,
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, title.width()));
    if (!excerpt.isEmpty()) {
        rest.setTop(title.bottom() + 1 - gap);
        painter->setFont(TypeScale::label());
        if (!isSelected)
            painter->setPen(theme.quiet);
        painter->drawText(rest, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, excerpt);
    }
    painter->restore();
}

QSize HelpEntryDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QString excerpt = index.data(excerptRole).toString();
    const auto *view = qobject_cast<const QListView *>(option.widget);
    const int width = view ? view->viewport()->width() : option.rect.width();
    if (excerpt.isEmpty())
        return {width, rowHeight};
    return {width, rowHeight - gap + excerptRect(excerpt, width - 2 * inset).height() + 10};
}
