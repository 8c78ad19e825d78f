// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperrowdelegate.h"

#include "keeper/window/keeperlistmodel.h"
#include "shell/look/theme.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int inset = 8;
constexpr int signSize = 16;
constexpr int signGap = 5;
constexpr int lineGap = 2;

/// Where the title stands; the star has the rest.
QRect titlePlace(const QRect &row, const QModelIndex &index)
{
    const bool isFavourite = index.data(KeeperListModel::FavouriteRole).toBool();
    return row.adjusted(inset, 0, -inset - (isFavourite ? signSize + signGap : 0), 0);
}

void paintIcon(QPainter &painter, QLatin1StringView name, const QRect &place, const Theme &theme,
               bool isSelected)
{
    Icons::icon(name, theme.scheme)
        .paint(&painter, place, Qt::AlignCenter, isSelected ? QIcon::Selected : QIcon::Normal);
}

} // namespace

QSize KeeperRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    const int lines =
        QFontMetrics(TypeScale::strong()).height() + QFontMetrics(TypeScale::label()).height() + lineGap;
    return {120, lines + 12};
}

void KeeperRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const Theme &theme = Theme::of(row.widget);
    const bool isSelected = row.state & QStyle::State_Selected;
    if (isSelected)
        painter->fillRect(row.rect, theme.accent);
    else if (row.state & QStyle::State_MouseOver)
        painter->fillRect(row.rect, theme.soft);
    const QFontMetrics titleMetrics(TypeScale::strong());
    const QFontMetrics wordMetrics(TypeScale::label());
    QRect place = titlePlace(row.rect, index);
    const int top = row.rect.center().y() - (titleMetrics.height() + lineGap + wordMetrics.height()) / 2;
    place.setTop(top);
    painter->setPen(isSelected ? theme.onAccent : theme.text);
    painter->setFont(TypeScale::strong());
    painter->drawText(place, Qt::AlignLeft | Qt::AlignTop,
                      titleMetrics.elidedText(index.data().toString(), Qt::ElideRight, place.width()));
    if (index.data(KeeperListModel::FavouriteRole).toBool()) {
        const QRect star(place.right() + signGap, top + (titleMetrics.height() - signSize) / 2, signSize,
                         signSize);
        paintIcon(*painter, "favourite"_L1, star, theme, isSelected);
    }
    place = row.rect.adjusted(inset, 0, -inset, 0);
    place.setTop(top + titleMetrics.height() + lineGap);
    place.setHeight(wordMetrics.height());
    const int sign = index.data(KeeperListModel::SignRole).toInt();
    QColor ink = theme.quiet;
    if (sign != KeeperListModel::NoSign) {
        const bool isOver = sign == KeeperListModel::Overdue;
        const QRect mark(place.left(), place.center().y() - signSize / 2 + 1, signSize, signSize);
        paintIcon(*painter, isOver ? "overdue"_L1 : "due"_L1, mark, theme, isSelected);
        place.setLeft(mark.right() + signGap);
        ink = isOver ? theme.negative : theme.due;
    }
    painter->setPen(isSelected ? theme.onAccent : ink);
    painter->setFont(TypeScale::label());
    const QString words = index.data(KeeperListModel::WordsRole).toString();
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                      wordMetrics.elidedText(words, Qt::ElideRight, place.width()));
}

bool KeeperRowDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                  const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QString title = index.data().toString();
    const QString words = index.data(KeeperListModel::WordsRole).toString();
    const int room = titlePlace(option.rect, index).width();
    const bool isCut = QFontMetrics(TypeScale::strong()).horizontalAdvance(title) > room ||
                       QFontMetrics(TypeScale::label()).horizontalAdvance(words) > room - signSize - signGap;
    QToolTip::showText(event->globalPos(), index.isValid() && isCut ? title + u'\n' + words : QString(),
                       view);
    return true;
}
