// SPDX-License-Identifier: GPL-3.0-or-later
#include "canvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

Canvas::Canvas(quint32 seed)
    : m_image(width, height, QImage::Format_RGBA64_Premultiplied)
    , m_random(seed)
{
    m_image.fill(Qt::white);
    m_painter.begin(&m_image);
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(Qt::NoPen);
}

std::vector<int> Canvas::noise(int side, qreal spread)
{
    std::vector<int> values(std::size_t((width / side) * (height / side)));
    for (int &value : values)
        value = int(between(-0.5, 0.5) * spread * unit);
    return values;
}

QImage Canvas::finished()
{
    m_painter.end();
    // JPEG rounds the mean of every 8 x 8 block (of colour: 16 x 16). Half a step of chance from block to
    // block keeps slow gradients from turning into bands.
    const std::vector<int> light = noise(8, 0.75);
    const std::vector<int> red = noise(16, 1.0);
    const std::vector<int> blue = noise(16, 1.3);
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        const auto *from = reinterpret_cast<const QRgba64 *>(m_image.constScanLine(y));
        auto *to = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const int small = y / 8 * (width / 8) + x / 8;
            const int large = y / 16 * (width / 16) + x / 16;
            const int dither = int(m_random.bounded(unit)) + light[std::size_t(small)];
            const auto channel = [](int value) { return std::clamp(value / unit, 0, 255); };
            to[x] = qRgb(channel(from[x].red() + dither + red[std::size_t(large)]),
                         channel(from[x].green() + dither),
                         channel(from[x].blue() + dither + blue[std::size_t(large)]));
        }
    }
    return picture;
}

qreal Canvas::between(qreal least, qreal most)
{
    return least + (most - least) * m_random.generateDouble();
}

qreal Canvas::around(qreal middle, qreal spread)
{
    return middle + spread * (between(-1, 1) + between(-1, 1) + between(-1, 1));
}

QColor Canvas::oneOf(std::span<const QColor> colours)
{
    return colours[std::size_t(m_random.bounded(int(colours.size())))];
}

Curve Canvas::waves(qreal base, qreal swing, qreal length)
{
    constexpr qreal turn = 2 * std::numbers::pi;
    const std::array<qreal, 3> phase{between(0, turn), between(0, turn), between(0, turn)};
    return [=](qreal x) {
        const qreal way = turn * x / length;
        return base + swing * (0.62 * std::sin(way + phase[0]) + 0.28 * std::sin(1.9 * way + phase[1]) +
                               0.10 * std::sin(3.7 * way + phase[2]));
    };
}

Curve Canvas::peaks(qreal base, qreal height, qreal spacing)
{
    std::vector<QPointF> points;
    qreal x = -spacing;
    for (bool isPeak = true; x < width + spacing; isPeak = !isPeak) {
        const qreal share = isPeak ? between(0.45, 1.0) : between(0.05, 0.35);
        points.emplace_back(x, base - height * share);
        x += spacing * between(0.3, 0.7);
    }
    points.emplace_back(width + 3 * spacing, base);
    return [points](qreal at) {
        std::size_t i = 1;
        while (i + 1 < points.size() && points[i].x() < at)
            ++i;
        const qreal share = (at - points[i - 1].x()) / (points[i].x() - points[i - 1].x());
        return points[i - 1].y() + share * (points[i].y() - points[i - 1].y());
    };
}

void Canvas::gradient(qreal top, qreal foot, std::initializer_list<Stop> stops)
{
    QLinearGradient fill(0, top, 0, foot);
    for (const Stop &stop : stops)
        fill.setColorAt(stop.at, stop.colour);
    m_painter.fillRect(QRectF(0, top, width, foot - top), fill);
}

void Canvas::land(const Curve &crest, const QColor &colour, const QColor &foot, qreal depth)
{
    const QPainterPath path = below(crest);
    const qreal top = path.boundingRect().top();
    QLinearGradient fill(0, top, 0, top + depth);
    fill.setColorAt(0, colour);
    fill.setColorAt(1, foot);
    m_painter.fillPath(path, fill);
}

void Canvas::shape(const QPainterPath &path, const QBrush &brush)
{
    m_painter.fillPath(path, brush);
}

void Canvas::line(const QPainterPath &path, const QColor &colour, qreal width)
{
    m_painter.strokePath(path, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void Canvas::disc(QPointF centre, qreal radius, const QBrush &brush)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    m_painter.fillPath(path, brush);
}

void Canvas::glow(QPointF centre, qreal radius, const QColor &colour, qreal strength)
{
    QRadialGradient light(centre, radius);
    // Close to a bell curve: a straight fall would show its rim.
    for (const qreal at : {0.0, 0.15, 0.3, 0.45, 0.6, 0.75, 0.9})
        light.setColorAt(at, faint(colour, strength * std::pow(std::cos(at * std::numbers::pi / 2), 2)));
    light.setColorAt(1, faint(colour, 0));
    m_painter.fillRect(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), light);
}

void Canvas::shadow(const QPainterPath &path, QPointF offset, qreal reach, const QColor &colour)
{
    constexpr int rings = 12;
    m_painter.save();
    m_painter.translate(offset);
    for (int ring = 1; ring <= rings; ++ring)
        line(path, faint(colour, colour.alphaF() / rings), 2 * reach * ring / rings);
    m_painter.restore();
}

QPainterPath lineAlong(const Curve &curve, qreal from, qreal to)
{
    constexpr qreal step = 4;
    QPainterPath path(QPointF(from, curve(from)));
    for (qreal x = from + step; x < to; x += step)
        path.lineTo(x, curve(x));
    path.lineTo(to, curve(to));
    return path;
}

QPainterPath below(const Curve &curve)
{
    QPainterPath path = lineAlong(curve, -20, Canvas::width + 20);
    path.lineTo(Canvas::width + 20, Canvas::height + 20);
    path.lineTo(-20, Canvas::height + 20);
    path.closeSubpath();
    return path;
}

QColor mixed(const QColor &one, const QColor &other, qreal share)
{
    const auto channel = [share](int from, int to) { return int(std::lround(from + share * (to - from))); };
    return QColor(channel(one.red(), other.red()), channel(one.green(), other.green()),
                  channel(one.blue(), other.blue()));
}

QColor faint(const QColor &colour, qreal opacity)
{
    QColor result = colour;
    result.setAlphaF(float(opacity));
    return result;
}
