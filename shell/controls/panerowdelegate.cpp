// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/panerowdelegate.h"

#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/panerows.h"
#include "shell/look/theme.h"

#include <QLocale>
#include <QPainter>
#include <QPainterPath>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int inset = 8;
constexpr int gap = 8;
constexpr int signSize = 16;
constexpr int foldWidth = 8;
constexpr int pictureRound = 3;

/// Whether the rows below a heading are shown.
void paintFold(QPainter &painter, const QRect &row, bool isOpen, const QColor &ink)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(row.left() + foldWidth / 2.0, row.center().y() + 1);
    if (isOpen)
        painter.rotate(90);
    painter.drawPolyline(QPolygonF{{-2, -4}, {2, 0}, {-2, 4}});
    painter.restore();
}

/// A soft fill stands where it is still to come.
void paintPicture(QPainter &painter, const QRect &row, const QImage &picture, const QColor &soft)
{
    const QRect place(row.left(), row.center().y() - PaneRowDelegate::pictureSide / 2 + 1,
                      PaneRowDelegate::pictureSide, PaneRowDelegate::pictureSide);
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath rounded;
    rounded.addRoundedRect(place, pictureRound, pictureRound);
    painter.setClipPath(rounded);
    picture.isNull() ? painter.fillRect(place, soft) : painter.drawImage(place, picture);
    painter.restore();
}
} // namespace

PaneRowDelegate::PaneRowDelegate(QObject *parent, MakeBox makeBox)
    : QStyledItemDelegate(parent)
    , m_makeBox(std::move(makeBox))
{}

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
        const QString words = QLocale(QLocale::English, QLocale::UnitedStates).toString(count);
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
    const int kind = index.data(PaneRows::kindRole).toInt();
    painter->setFont(kind == PaneRows::Row::Plain ? option.font : TypeScale::strong());
    if (kind != PaneRows::Row::Plain) {
        paintFold(*painter, place, kind == PaneRows::Row::Open, isSelected ? theme.onAccent : theme.quiet);
        place.setLeft(place.left() + foldWidth + gap);
    }
    if (const QVariant picture = index.data(Qt::DecorationRole); picture.isValid()) {
        paintPicture(*painter, place, picture.value<QImage>(), theme.soft);
        place.setLeft(place.left() + pictureSide + gap);
    }
    painter->setPen(isSelected ? theme.onAccent : option.palette.color(QPalette::Text));
    painter->drawText(
        place, Qt::AlignVCenter | Qt::AlignLeft,
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, place.width()));
}

QWidget *PaneRowDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                       const QModelIndex &) const
{
    QLineEdit *box = m_makeBox(parent);
    box->setFrame(false);
    return box;
}
