// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

#include <functional>
#include <initializer_list>
#include <span>
#include <vector>

/// The height of a line at `x`, both in pixels of the picture.
using Curve = std::function<qreal(qreal x)>;

/// A colour on the way down a gradient; `at` runs from 0 at its top to 1 at its foot.
struct Stop {
    qreal at;
    QColor colour;
};

/// A background picture in the making, with 16 bits a channel so that long gradients have no steps. All
/// chance comes from its seed: the same picture is painted every time.
class Canvas
{
public:
    static constexpr int width = 1920;
    static constexpr int height = 1200;

    explicit Canvas(quint32 seed);

    QPainter &painter() { return m_painter; }
    /// What is painted so far inside `area`.
    QImage copy(const QRect &area) const { return m_image.copy(area); }
    /// The picture as it is saved, 8 bits a channel.
    QImage finished();

    qreal between(qreal least, qreal most);
    /// A number around `middle`, seldom further away than twice `spread`.
    qreal around(qreal middle, qreal spread);
    bool chance(qreal probability) { return between(0, 1) < probability; }
    QColor oneOf(std::span<const QColor> colours);

    /// A long calm wave around `base`.
    Curve waves(qreal base, qreal swing, qreal length);
    /// A mountain crest between `base` and `height` pixels above it, a peak about every `spacing` pixels.
    Curve peaks(qreal base, qreal height, qreal spacing);

    /// A vertical gradient over the picture from `top` to `foot`.
    void gradient(qreal top, qreal foot, std::initializer_list<Stop> stops);
    /// All below `crest`, from `colour` on its highest point to `foot` `depth` pixels further down.
    void land(const Curve &crest, const QColor &colour, const QColor &foot, qreal depth);
    void shape(const QPainterPath &path, const QBrush &brush);
    void line(const QPainterPath &path, const QColor &colour, qreal width);
    void disc(QPointF centre, qreal radius, const QBrush &brush);
    /// Light that fades from `strength` (0 to 1) at `centre` to nothing at `radius`.
    void glow(QPointF centre, qreal radius, const QColor &colour, qreal strength);
    /// A soft dark rim around `path`, about `reach` pixels wide; painted before the shape that throws it.
    void shadow(const QPainterPath &path, QPointF offset, qreal reach, const QColor &colour);

private:
    static constexpr int unit = 257; ///< one step of 8 bits in 16 bits

    /// Chance for every square of `side` pixels, `spread` steps wide around 0.
    std::vector<int> noise(int side, qreal spread);

    QImage m_image;
    QRandomGenerator m_random;
    QPainter m_painter;
};

QPainterPath lineAlong(const Curve &curve, qreal from, qreal to);
/// Closed along the foot of the picture.
QPainterPath below(const Curve &curve);
QColor mixed(const QColor &one, const QColor &other, qreal share);
/// `opacity` from 0 to 1.
QColor faint(const QColor &colour, qreal opacity);
