// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturetiledelegate.h"

#include "shell/look/theme.h"
#include "shell/pictures/picturegrid.h"
#include "shell/pictures/picturetiles.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int inset = 8;
constexpr int gap = 4;
constexpr double heightToSide = 0.8;
constexpr int signSize = 16;
constexpr int signInset = 4;

int lineHeight()
{
    return QFontMetrics(TypeScale::label()).height();
}

} // namespace

PictureTileDelegate::PictureTileDelegate(PictureGrid *grid)
    : QStyledItemDelegate(grid)
    , m_grid(*grid)
{}

QSize PictureTileDelegate::tileSize(int side)
{
    return {side + 2 * inset, qRound(side * heightToSide) + 2 * inset + gap + 2 * lineHeight()};
}

QSize PictureTileDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return m_grid.gridSize();
}

void PictureTileDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    const Theme &theme = Theme::of(option.widget);
    const bool isChosen = option.state & QStyle::State_Selected;
    const bool isCurrent = (option.state & QStyle::State_HasFocus) && m_grid.hasFocus();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isChosen || isCurrent || (option.state & QStyle::State_MouseOver)) {
        painter->setPen(isCurrent  ? QPen(theme.accent, 2)
                        : isChosen ? QPen(theme.accent, 1)
                                   : QPen(Qt::NoPen));
        painter->setBrush(isChosen || !isCurrent ? QBrush(theme.soft) : QBrush(Qt::NoBrush));
        painter->drawRoundedRect(QRectF(option.rect).adjusted(2, 2, -2, -2), 6, 6);
    }
    const QRect tile = option.rect.adjusted(inset, inset, -inset, -inset);
    const int line = lineHeight();
    const QRect room = tile.adjusted(0, 0, 0, -2 * line - gap);
    paintPicture(*painter, room, index.row());
    const PictureTiles::Tile words = m_grid.tiles().tile(index.row());
    painter->setFont(TypeScale::label());
    const QFontMetrics metrics = painter->fontMetrics();
    // The list has a field of its own: the ink that was chosen for the panel is not for it.
    painter->setPen(theme.text);
    painter->drawText(QRect(tile.left(), room.bottom() + 1 + gap, tile.width(), line), Qt::AlignCenter,
                      metrics.elidedText(words.name, Qt::ElideMiddle, tile.width()));
    painter->setPen(theme.quiet);
    painter->drawText(QRect(tile.left(), room.bottom() + 1 + gap + line, tile.width(), line), Qt::AlignCenter,
                      metrics.elidedText(words.words, Qt::ElideRight, tile.width()));
    painter->restore();
}

void PictureTileDelegate::paintPicture(QPainter &painter, const QRect &room, int row) const
{
    const PictureQueue::Kept kept = m_grid.kept(row);
    if (kept.image.isNull()) {
        paintEmpty(painter, room, kept.reason);
        return;
    }
    QRect place(QPoint(), kept.image.size().scaled(room.size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
    place.moveCenter(room.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, kept.image);
    painter.setPen(Theme::of(&m_grid).line);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(place).adjusted(-.5, -.5, .5, .5));
    if (kept.look == PictureQueue::Look::Away)
        paintSign(painter, place, "drive"_L1);
    else if (kept.look == PictureQueue::Look::Cut)
        paintSign(painter, place, "warning"_L1);
}

/// What is still to come is a quiet field; what cannot be seen has a dashed rim and says why.
void PictureTileDelegate::paintEmpty(QPainter &painter, const QRect &room, const QString &reason) const
{
    const Theme &theme = Theme::of(&m_grid);
    QRect place(QPoint(), QSize(4, 3).scaled(room.size(), Qt::KeepAspectRatio));
    place.moveCenter(room.center());
    QPen rim(reason.isEmpty() ? theme.line : theme.edge, 1,
             reason.isEmpty() ? Qt::SolidLine : Qt::CustomDashLine);
    if (!reason.isEmpty())
        rim.setDashPattern({3, 3});
    painter.setPen(rim);
    painter.setBrush(theme.locked);
    painter.drawRoundedRect(QRectF(place).adjusted(.5, .5, -.5, -.5), 4, 4);
    painter.setPen(theme.quiet);
    painter.setFont(TypeScale::label());
    painter.drawText(place.adjusted(4, 4, -4, -4), Qt::AlignCenter | Qt::TextWordWrap, reason);
}

void PictureTileDelegate::paintSign(QPainter &painter, const QRect &picture, QLatin1StringView icon) const
{
    const Theme &theme = Theme::of(&m_grid);
    QRect disc(QPoint(), QSize(signSize + 2 * signInset, signSize + 2 * signInset));
    disc.moveBottomRight(picture.bottomRight() - QPoint(signInset, signInset));
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.panel);
    painter.drawEllipse(disc);
    Icons::icon(icon, theme.scheme)
        .paint(&painter, disc.adjusted(signInset, signInset, -signInset, -signInset));
}
