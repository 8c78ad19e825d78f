// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/starsbox.h"

#include "shell/look/theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr int stars = 5;
constexpr int starSize = 24;
constexpr int inset = 5;
constexpr double innerRadius = 0.45; ///< of the outer one

QPainterPath starPath()
{
    QPainterPath path;
    const double radius = starSize / 2.0 - 3;
    for (int point = 0; point < 2 * stars; ++point) {
        const double angle = std::numbers::pi * (point / double(stars) - 0.5);
        const double length = point % 2 == 0 ? radius : radius * innerRadius;
        const QPointF place(length * std::cos(angle), length * std::sin(angle));
        if (point == 0)
            path.moveTo(place);
        else
            path.lineTo(place);
    }
    path.closeSubpath();
    return path;
}

} // namespace

StarsBox::StarsBox(const QString &name, QWidget *parent)
    : QAbstractSlider(parent)
{
    setObjectName(name);
    setRange(0, stars);
    setOrientation(Qt::Horizontal);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void StarsBox::show(int rating)
{
    m_isMixed = rating < 0;
    setValue(std::max(0, rating));
    update();
}

QSize StarsBox::sizeHint() const
{
    return {stars * starSize + 2 * inset, starSize + 2 * inset};
}

void StarsBox::rate(int rating)
{
    rating = std::clamp(rating, 0, stars);
    if (rating == value() && !m_isMixed)
        return;
    show(rating);
    emit rated(rating);
}

void StarsBox::paintEvent(QPaintEvent *)
{
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus()) {
        painter.setPen(QPen(theme.accent, 2));
        painter.setBrush(theme.mark);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
    }
    const QColor ink = hasFocus() ? theme.text : palette().color(QPalette::WindowText);
    for (int star = 0; star < stars; ++star) {
        painter.save();
        painter.translate(inset + star * starSize + starSize / 2.0, height() / 2.0 + 1);
        painter.setPen(QPen(ink, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(star < value() && !m_isMixed ? QBrush(ink) : QBrush(Qt::NoBrush));
        painter.drawPath(starPath());
        painter.restore();
    }
}

void StarsBox::mousePressEvent(QMouseEvent *event)
{
    const int star = std::clamp((int(event->position().x()) - inset) / starSize + 1, 1, stars);
    rate(star == value() && !m_isMixed ? 0 : star);
}

void StarsBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        rate(value() - 1);
        return;
    case Qt::Key_Right:
    case Qt::Key_Up:
        rate(value() + 1);
        return;
    default:
        if (event->key() >= Qt::Key_0 && event->key() <= Qt::Key_5)
            rate(event->key() - Qt::Key_0);
        else
            QWidget::keyPressEvent(event);
    }
}
