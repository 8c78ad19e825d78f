// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carrowdelegate.h"

#include "cars/window/carlistmodel.h"
#include "shell/look/theme.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int inset = 8;
constexpr int corner = 6;
constexpr int signSize = 16;
constexpr int lineGap = 2;
constexpr int signGap = 5;
constexpr int iconSize = 32;
constexpr int pictureGap = 10;
constexpr int enoughForWords = 150; ///< beside a picture, however long a name is

/// What the words of a row take, in their shorter form.
int neededWidth(const QModelIndex &row)
{
    const QString shorter = row.data(CarListModel::shorterRole).toString();
    const QString words = shorter.isEmpty() ? row.data(CarListModel::wordsRole).toString() : shorter;
    const bool hasSign = row.data(CarListModel::urgencyRole).toInt() != CarListModel::Sign::None;
    return std::max(QFontMetrics(TypeScale::strong()).horizontalAdvance(row.data().toString()),
                    QFontMetrics(TypeScale::label()).horizontalAdvance(words) +
                        (hasSign ? signSize + signGap : 0));
}

/// In a narrow list the names and what is due come before the pictures, in all rows alike.
bool hasPictures(const QRect &row, const QModelIndex &index)
{
    const int room = row.width() - 2 * inset - CarRowDelegate::pictureSize().width() - pictureGap;
    if (!index.isValid() || room >= TypeScale::wide(enoughForWords))
        return true;
    for (int i = 0; i < index.model()->rowCount(); ++i) {
        if (neededWidth(index.siblingAtRow(i)) > room)
            return false;
    }
    return true;
}

/// Where the two lines of words stand.
QRect wordsPlace(const QRect &row, const QModelIndex &index)
{
    const int picture = hasPictures(row, index) ? CarRowDelegate::pictureSize().width() + pictureGap : 0;
    return row.adjusted(inset + picture, 0, -inset, 0);
}

void paintPicture(QPainter &painter, const QRect &place, const QImage &picture, const Theme &theme)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(place, corner, corner);
    painter.fillPath(shape, theme.field);
    if (picture.isNull()) {
        const qreal ratio = painter.device()->devicePixelRatioF();
        const QRect sign(place.center() - QPoint(iconSize, iconSize) / 2, QSize(iconSize, iconSize));
        painter.drawPixmap(sign, Icons::pixmap("car-log"_L1, theme.scheme, iconSize, ratio));
    } else {
        painter.setClipPath(shape);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const QSizeF whole = QSizeF(picture.size()).scaled(place.size(), Qt::KeepAspectRatioByExpanding);
        QRectF target({}, whole);
        target.moveCenter(QRectF(place).center());
        painter.drawImage(target, picture);
        painter.setClipping(false);
    }
    painter.setPen(theme.line);
    painter.drawPath(shape);
    painter.restore();
}

} // namespace

QSize CarRowDelegate::pictureSize()
{
    return {60, 44};
}

QSize CarRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    const int lines =
        QFontMetrics(TypeScale::strong()).height() + QFontMetrics(TypeScale::label()).height() + lineGap;
    return {pictureSize().width() + 120, std::max(pictureSize().height(), lines) + 14};
}

void CarRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
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
    const QRect picture({row.rect.left() + inset, row.rect.center().y() - pictureSize().height() / 2 + 1},
                        pictureSize());
    if (hasPictures(row.rect, index))
        paintPicture(*painter, picture, index.data(Qt::DecorationRole).value<QImage>(), theme);

    const QString words = index.data(CarListModel::wordsRole).toString();
    const auto urgency = index.data(CarListModel::urgencyRole).toInt();
    const QFontMetrics nameMetrics(TypeScale::strong());
    const QFontMetrics wordMetrics(TypeScale::label());
    const int height = nameMetrics.height() + (words.isEmpty() ? 0 : lineGap + wordMetrics.height());
    QRect place = wordsPlace(row.rect, index);
    place.setTop(row.rect.center().y() - height / 2);
    painter->setPen(isSelected ? theme.onAccent : theme.text);
    painter->setFont(TypeScale::strong());
    painter->drawText(place, Qt::AlignLeft | Qt::AlignTop,
                      nameMetrics.elidedText(index.data().toString(), Qt::ElideRight, place.width()));
    if (words.isEmpty())
        return;
    place.setTop(place.top() + nameMetrics.height() + lineGap);
    place.setHeight(wordMetrics.height());
    if (urgency != CarListModel::Sign::None) {
        const bool isOver = urgency == CarListModel::Sign::Overdue;
        const QRect sign(place.left(), place.center().y() - signSize / 2 + 1, signSize, signSize);
        const QIcon icon = Icons::icon(isOver ? "overdue"_L1 : "due"_L1, theme.scheme);
        icon.paint(painter, sign, Qt::AlignCenter, isSelected ? QIcon::Selected : QIcon::Normal);
        place.setLeft(sign.right() + signGap);
        painter->setPen(isSelected ? theme.onAccent : isOver ? theme.negative : theme.due);
    } else {
        painter->setPen(isSelected ? theme.onAccent : theme.quiet);
    }
    painter->setFont(TypeScale::label());
    const QString shorter = index.data(CarListModel::shorterRole).toString();
    const bool isWhole = shorter.isEmpty() || wordMetrics.horizontalAdvance(words) <= place.width();
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                      wordMetrics.elidedText(isWhole ? words : shorter, Qt::ElideRight, place.width()));
}

bool CarRowDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                               const QModelIndex &index)
{
    const int room = wordsPlace(option.rect, index).width();
    const QString name = index.data().toString();
    const QString words = index.data(CarListModel::wordsRole).toString();
    const bool hasSign = index.data(CarListModel::urgencyRole).toInt() != CarListModel::Sign::None;
    const bool isCut =
        QFontMetrics(TypeScale::strong()).horizontalAdvance(name) > room ||
        QFontMetrics(TypeScale::label()).horizontalAdvance(words) > room - (hasSign ? signSize + signGap : 0);
    QToolTip::showText(event->globalPos(), !index.isValid() || !isCut ? QString() : name + u'\n' + words,
                       view);
    return true;
}
