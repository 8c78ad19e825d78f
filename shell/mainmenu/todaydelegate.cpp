// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/todaydelegate.h"

#include "shell/look/icons.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/todaylist.h"
#include "shell/mainmenu/todaymodel.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int inset = 8;
constexpr int gap = 10;
constexpr int signSide = 20;
constexpr int columnGap = 24;

QFont dayFont()
{
    return TypeScale::strong();
}

int timeWidth()
{
    const QFontMetrics metrics(TypeScale::body());
    return std::max(metrics.horizontalAdvance(u"10:00 AM"_s), metrics.horizontalAdvance(u"12:00 AM"_s)) + 2;
}

bool hasUserColor(const QPalette &palette)
{
    return palette.color(QPalette::Window) != Theme::of(static_cast<QWidget *>(nullptr)).panel;
}

/// On a panel of the user's colour a sign in its own hue could vanish.
QPixmap signOf(const QString &name, const QPalette &palette, qreal ratio)
{
    const Theme &theme = Theme::of(static_cast<QWidget *>(nullptr));
    QPixmap sign = Icons::pixmap(QLatin1StringView(name.toLatin1()), theme.scheme, signSide, ratio);
    if (hasUserColor(palette)) {
        QPainter ink(&sign);
        ink.setCompositionMode(QPainter::CompositionMode_SourceIn);
        ink.fillRect(sign.rect(), palette.color(QPalette::WindowText));
    }
    return sign;
}

} // namespace

int TodayDelegate::dayWidth()
{
    const QFontMetrics metrics(dayFont());
    return 2 * inset +
           std::max(metrics.horizontalAdvance(u"Tomorrow"_s), metrics.horizontalAdvance(u"Wed, Nov 30"_s));
}

bool TodayDelegate::tellsDay(const QModelIndex &index) const
{
    if (index.row() % m_columnLength == 0)
        return true;
    return index.siblingAtRow(index.row() - 1).data(TodayModel::DayRole) != index.data(TodayModel::DayRole);
}

QSize TodayDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {dayWidth(), TodayList::rowHeight()};
}

void TodayDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool isLast = option.rect.right() + columnGap > option.widget->width();
    const QRect line = option.rect.adjusted(dayWidth(), 0, isLast ? 0 : -columnGap, 0);
    paintGround(*painter, option, line);
    if (tellsDay(index))
        paintDay(*painter, option, index);
    paintLine(*painter, option, index, line.adjusted(inset, 0, -inset, 0));
    painter->restore();
}

void TodayDelegate::paintGround(QPainter &painter, const QStyleOptionViewItem &option,
                                const QRect &line) const
{
    const Theme &theme = Theme::of(option.widget);
    const QPalette &palette = option.widget->palette();
    const bool isFocused = option.state & QStyle::State_HasFocus;
    const QRectF place = QRectF(line).adjusted(1, 1, -1, -1);
    painter.setPen(Qt::NoPen);
    if (option.state & QStyle::State_MouseOver && m_dayUnderMouse < 0) {
        QColor fill = theme.soft;
        if (hasUserColor(palette)) {
            fill = palette.color(QPalette::WindowText);
            fill.setAlphaF(0.1F);
        }
        painter.setBrush(fill);
        painter.drawRoundedRect(place, 6, 6);
    }
    if (!isFocused)
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(ThemeRole::strong), 2));
    painter.drawRoundedRect(place, 6, 6);
}

void TodayDelegate::paintDay(QPainter &painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QFont font = dayFont();
    font.setUnderline(index.row() == m_dayUnderMouse);
    painter.setFont(font);
    painter.setPen(option.widget->palette().color(QPalette::WindowText));
    const QRect place(option.rect.left(), option.rect.top(), dayWidth() - inset, option.rect.height());
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     QFontMetrics(font).elidedText(index.data(TodayModel::DayRole).toString(), Qt::ElideRight,
                                                   place.width()));
}

void TodayDelegate::paintLine(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                              QRect place) const
{
    const QPalette &palette = option.widget->palette();
    const auto write = [&](const QFont &font, QPalette::ColorRole role, const QRect &where, int align,
                           const QString &text) {
        painter.setFont(font);
        painter.setPen(palette.color(role));
        painter.drawText(where, align | Qt::AlignVCenter | Qt::TextSingleLine,
                         QFontMetrics(font).elidedText(text, Qt::ElideRight, where.width()));
    };
    const auto ink = index.data(TodayModel::IsOverRole).toBool() ? ThemeRole::quiet : QPalette::WindowText;
    // A column without times has that room for its words.
    const int firstLine = index.row() - index.row() % m_columnLength;
    if (static_cast<const TodayModel *>(index.model())->hasTimes(firstLine, m_columnLength)) {
        const QRect time(place.left(), place.top(), timeWidth(), place.height());
        write(TypeScale::body(), ink, time, Qt::AlignRight, index.data(TodayModel::TimeRole).toString());
        place.setLeft(time.right() + gap);
    }
    const QString icon = index.data(TodayModel::IconRole).toString();
    if (!icon.isEmpty())
        painter.drawPixmap(place.left(), place.center().y() - signSide / 2 + 1,
                           signOf(icon, palette, painter.device()->devicePixelRatioF()));
    place.setLeft(place.left() + signSide + gap);
    const QString source = index.data(TodayModel::SourceRole).toString();
    const int sourceWidth = QFontMetrics(TypeScale::label()).horizontalAdvance(source);
    const int textWidth = QFontMetrics(TypeScale::body()).horizontalAdvance(index.data().toString());
    if (place.width() - sourceWidth - gap >= textWidth) { // the sign tells where it comes from, too
        write(TypeScale::label(), ThemeRole::quiet,
              {place.right() - sourceWidth, place.top(), sourceWidth + 1, place.height()}, Qt::AlignRight,
              source);
        place.setRight(place.right() - sourceWidth - gap);
    }
    write(TypeScale::body(), icon.isEmpty() ? ThemeRole::strong : ink, place, Qt::AlignLeft,
          index.data().toString());
}
