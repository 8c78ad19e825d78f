// SPDX-License-Identifier: GPL-3.0-or-later
#include "plants.h"

#include <cmath>
#include <numbers>

namespace {

/// Half a leaf as points from foot to tip; `mirrored` gives the other half.
QPainterPath mirrored(std::initializer_list<QPointF> rightSide, qreal length)
{
    QPainterPath half;
    half.moveTo(0, length / 2);
    for (const QPointF &point : rightSide)
        half.lineTo(point.x() * length, (0.5 - point.y()) * length);
    half.lineTo(0, -length / 2);
    half.closeSubpath();
    return half.united(QTransform::fromScale(-1, 1).map(half));
}

} // namespace

void Plants::fir(Canvas &canvas, QPointF foot, qreal height, const QColor &colour, const QColor &snow)
{
    constexpr int tiers = 5;
    for (int tier = 0; tier < tiers; ++tier) {
        const qreal tip = foot.y() - height * (0.34 + 0.165 * tier);
        const qreal edge = foot.y() - height * (0.06 + 0.15 * tier);
        const qreal half = height * (0.21 - 0.034 * tier);
        QPainterPath bough(QPointF(foot.x(), tip));
        bough.quadTo(foot.x() + half * 0.45, edge - half * 0.5, foot.x() + half, edge);
        bough.quadTo(foot.x(), edge + half * 0.28, foot.x() - half, edge);
        bough.quadTo(foot.x() - half * 0.45, edge - half * 0.5, foot.x(), tip);
        QLinearGradient fill(foot.x() - half, 0, foot.x() + half, 0);
        fill.setColorAt(0, colour);
        fill.setColorAt(1, mixed(colour, Qt::white, 0.16));
        canvas.shape(bough, fill);
        if (!snow.isValid())
            continue;
        QPainterPath cap(QPointF(foot.x(), tip));
        cap.quadTo(foot.x() + half * 0.40, edge - half * 0.6, foot.x() + half, edge);
        cap.quadTo(foot.x() + half * 0.3, edge - half * 0.35, foot.x(), tip);
        canvas.shape(cap, snow);
    }
}

void Plants::tree(Canvas &canvas, QPointF foot, qreal height, const QColor &colour, const QColor &light)
{
    QPainterPath trunk(foot + QPointF(-height * 0.045, 2));
    trunk.quadTo(foot + QPointF(-height * 0.015, -height * 0.3),
                 foot + QPointF(-height * 0.012, -height * 0.6));
    trunk.lineTo(foot + QPointF(height * 0.02, -height * 0.6));
    trunk.quadTo(foot + QPointF(height * 0.015, -height * 0.3), foot + QPointF(height * 0.05, 2));
    canvas.shape(trunk, mixed(colour, QColor(0x6B5B4A), 0.6));

    // Three heaps of lumps, each smaller, lighter and nearer to the sun than the one under it.
    for (const qreal lit : {0.0, 0.45, 0.9}) {
        const QPointF crown = foot + QPointF(0.09 * lit, -0.58 - 0.09 * lit) * height;
        const qreal size = height * (1 - 0.36 * lit);
        QPainterPath heap;
        heap.setFillRule(Qt::WindingFill);
        heap.addEllipse(crown, size * 0.30, size * 0.26);
        for (int i = 0; i < 13; ++i) {
            const qreal turn = 2 * std::numbers::pi * i / 13;
            const qreal lump = size * canvas.between(0.085, 0.145);
            heap.addEllipse(crown + QPointF(std::cos(turn) * 0.30, std::sin(turn) * 0.25) * size, lump,
                            lump * 0.9);
        }
        canvas.shape(heap, mixed(colour, light, lit));
    }
}

void Plants::blade(Canvas &canvas, QPointF foot, qreal height, qreal lean, qreal width, const QColor &colour)
{
    const QPointF tip = foot + QPointF(lean, -height);
    const QPointF bend = foot + QPointF(lean * 0.12, -height * 0.5);
    QPainterPath path(foot);
    path.quadTo(bend - QPointF(width, 0), tip);
    path.quadTo(bend + QPointF(width, 0), foot);
    canvas.shape(path, colour);
}

QPainterPath Plants::leaf(Leaf kind, qreal length)
{
    switch (kind) {
    case Leaf::Maple:
        return mirrored({{0.03, 0.18},
                         {0.20, 0.10},
                         {0.20, 0.20},
                         {0.44, 0.24},
                         {0.36, 0.36},
                         {0.50, 0.56},
                         {0.34, 0.56},
                         {0.30, 0.64},
                         {0.16, 0.54},
                         {0.20, 0.78},
                         {0.10, 0.76}},
                        length);
    case Leaf::Oak: {
        QPainterPath lobes;
        for (const auto &[y, half] :
             {std::pair{0.22, 0.13}, {0.40, 0.20}, {0.58, 0.19}, {0.75, 0.14}, {0.88, 0.09}}) {
            QPainterPath lobe;
            lobe.addRoundedRect(
                QRectF(-half * length, (0.5 - y - 0.075) * length, 2 * half * length, 0.15 * length),
                0.075 * length, 0.075 * length);
            lobes = lobes.united(lobe);
        }
        QPainterPath stem;
        stem.addRoundedRect(QRectF(-0.07 * length, -0.45 * length, 0.14 * length, 0.8 * length), 8, 8);
        return lobes.united(stem);
    }
    case Leaf::Beech:
        break;
    }
    QPainterPath path(QPointF(0, length / 2));
    path.cubicTo(length * 0.34, length * 0.22, length * 0.26, -length * 0.22, 0, -length / 2);
    path.cubicTo(-length * 0.26, -length * 0.22, -length * 0.34, length * 0.22, 0, length / 2);
    return path;
}
