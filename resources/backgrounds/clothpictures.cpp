// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures.h"
#include "plants.h"

#include <array>
#include <cmath>

namespace {

/// Threads that are a little thicker than their neighbours.
void slubs(Canvas &canvas, int count, Qt::Orientation direction)
{
    for (int i = 0; i < count; ++i) {
        const QColor colour = canvas.chance(0.5) ? faint(0xFFFDF6, canvas.between(0.10, 0.34))
                                                 : faint(0xC9B793, canvas.between(0.06, 0.20));
        const qreal length = canvas.between(160, 900);
        const QPointF place(canvas.between(-200, Canvas::width), canvas.between(-200, Canvas::height));
        const qreal thick = canvas.between(1.6, 3.6);
        QPainterPath thread;
        thread.addRoundedRect(direction == Qt::Horizontal ? QRectF(place, QSizeF(length, thick))
                                                          : QRectF(place, QSizeF(thick, length)),
                              1.6, 1.6);
        canvas.shape(thread, colour);
    }
}

void runningStitch(Canvas &canvas, qreal y, const QColor &colour, qreal stitch)
{
    for (qreal x = -6; x < Canvas::width; x += stitch * 1.7) {
        QPainterPath path(QPointF(x, y));
        path.lineTo(x + stitch, y);
        canvas.line(path.translated(0, 2), faint(0x8A7550, 0.30), 5);
        canvas.line(path, colour, 5);
    }
}

/// An embroidered sprig: a stem with paired leaves and a flower of five petals.
void sprig(Canvas &canvas, QPointF foot, qreal side, const QColor &petals)
{
    const QColor green(0x6E9A8C);
    QPainterPath stem(foot);
    stem.cubicTo(foot + QPointF(side * 10, -40), foot + QPointF(side * 46, -60),
                 foot + QPointF(side * 58, -112));
    canvas.line(stem.translated(1, 2), faint(0x8A7550, 0.25), 5);
    canvas.line(stem, green, 5);
    for (const qreal way : {0.25, 0.45, 0.65})
        for (const qreal turn : {-62.0, 58.0}) {
            canvas.painter().save();
            canvas.painter().translate(stem.pointAtPercent(way));
            canvas.painter().rotate(turn + side * 18);
            canvas.shape(Plants::leaf(Plants::Leaf::Beech, 34).translated(0, -18),
                         way < 0.5 ? green : QColor(0x86AE9E));
            canvas.painter().restore();
        }
    const QPointF head = foot + QPointF(side * 20, -112);
    for (int i = 0; i < 5; ++i) {
        const qreal turn = 1.2566 * i + 0.3;
        canvas.disc(head + QPointF(std::cos(turn), std::sin(turn)) * 15, 12.5, petals);
    }
    canvas.disc(head, 8, QColor(0xE9C683));
}

void hem(Canvas &canvas)
{
    canvas.gradient(940, 960,
                    {{0, faint(0xC5B48F, 0)}, {0.5, faint(0xC5B48F, 0.35)}, {1, faint(0xC5B48F, 0)}});
    for (qreal x = 0; x < Canvas::width; x += 16) {
        QPainterPath hole;
        hole.addRoundedRect(QRectF(x, 968, 9, 30), 4, 4);
        canvas.shape(hole, faint(0xB9A67F, 0.45));
    }
    runningStitch(canvas, 956, 0x7FB0A8, 22);
    runningStitch(canvas, 1011, 0x7FB0A8, 22);
    const std::array<QColor, 3> petals{0xD99A8B, 0x9AA8CF, 0xDDB877};
    for (int i = 0; i < 13; ++i)
        sprig(canvas, {i * 160.0, 1160}, i % 2 ? 1 : -1, petals[std::size_t(i) % 3]);
    runningStitch(canvas, 1176, 0xD9A796, 22);
}

} // namespace

void Pictures::linen(Canvas &canvas)
{
    canvas.gradient(0, Canvas::height, {{0, 0xF5EFE3}, {0.5, 0xF2E9D9}, {1, 0xEADFC9}});
    slubs(canvas, 420, Qt::Horizontal);
    slubs(canvas, 420, Qt::Vertical);
    // Broad folds, deeper towards the hem.
    for (const qreal x : {140.0, 610.0, 1010.0, 1420.0, 1790.0}) {
        QLinearGradient fold(x - 150, 0, x + 150, 0);
        fold.setColorAt(0, faint(0x9C8862, 0));
        fold.setColorAt(0.45, faint(0x9C8862, 0.12));
        fold.setColorAt(0.62, faint(0xFFFDF5, 0.32));
        fold.setColorAt(1, faint(0xFFFDF5, 0));
        canvas.painter().fillRect(QRectF(x - 150, 0, 300, Canvas::height), fold);
    }
    canvas.gradient(0, 780,
                    {{0, faint(0xF5EFE3, 0.85)}, {0.6, faint(0xF4EDDF, 0.7)}, {1, faint(0xF2E9D9, 0)}});
    hem(canvas);
}

namespace {

constexpr qreal patchSide = 120;

const std::array<QColor, 10> patchColours{0xEFD9CB, 0xE4D5E8, 0xD6E2EE, 0xDCE8D3, 0xF2E6C6,
                                          0xEBCFC9, 0xCFDDE0, 0xE9DFD0, 0xD9D3EA, 0xF4ECDD};

void triangle(Canvas &canvas, QPointF one, QPointF two, QPointF three, const QColor &colour)
{
    QPainterPath path;
    path.addPolygon(QPolygonF{one, two, three});
    canvas.shape(path, colour);
}

/// Small printed dots or flowers on a plain patch.
void print(Canvas &canvas, const QRectF &patch, const QColor &colour)
{
    const qreal step = patchSide / 4;
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            canvas.disc(patch.topLeft() +
                            QPointF(step * (column + (row % 2 ? 0.75 : 0.25)), step * (row + 0.5)),
                        4.5, colour);
}

void patch(Canvas &canvas, const QRectF &area)
{
    const QColor ground = canvas.oneOf(patchColours);
    const QColor figure = canvas.oneOf(patchColours);
    canvas.painter().fillRect(area, ground);
    const qreal kind = canvas.between(0, 1);
    if (kind < 0.34)
        triangle(canvas, area.bottomLeft(), canvas.chance(0.5) ? area.topRight() : area.topLeft(),
                 area.bottomRight(), figure);
    else if (kind < 0.55) {
        triangle(canvas, area.topLeft(), area.center(), area.topRight(), figure);
        triangle(canvas, area.bottomLeft(), area.center(), area.bottomRight(), figure);
    } else if (kind < 0.78) {
        const QPointF middle = area.center();
        triangle(canvas, {middle.x(), area.top()}, {area.right(), middle.y()}, {area.left(), middle.y()},
                 figure);
        triangle(canvas, {middle.x(), area.bottom()}, {area.right(), middle.y()}, {area.left(), middle.y()},
                 figure);
    } else
        print(canvas, area, mixed(figure, 0xA58F86, 0.30));
}

/// Light on the padding, shade along the seams, and the quilting stitches.
void quilting(Canvas &canvas, const QRectF &area)
{
    QRadialGradient padding(area.center() - QPointF(14, 18), patchSide * 0.80);
    padding.setColorAt(0, faint(Qt::white, 0.30));
    padding.setColorAt(0.6, faint(Qt::white, 0));
    padding.setColorAt(1, faint(0x8A7466, 0.24));
    canvas.painter().fillRect(area, padding);
    QPainterPath stitches;
    stitches.addRect(area.adjusted(11, 11, -11, -11));
    QPen pen(faint(Qt::white, 0.65), 2.2, Qt::CustomDashLine, Qt::RoundCap);
    pen.setDashPattern({3, 3});
    canvas.painter().strokePath(stitches, pen);
}

} // namespace

void Pictures::patchwork(Canvas &canvas)
{
    for (qreal y = 0; y < Canvas::height; y += patchSide)
        for (qreal x = 0; x < Canvas::width; x += patchSide) {
            const QRectF area(x, y, patchSide, patchSide);
            patch(canvas, area);
            quilting(canvas, area);
        }
    const QColor sheet(0xF3ECE2);
    canvas.gradient(0, 760, {{0, faint(sheet, 0.93)}, {0.6, faint(sheet, 0.85)}, {1, faint(sheet, 0)}});
}

void Pictures::slate(Canvas &canvas)
{
    canvas.gradient(0, 760, {{0, 0x2A3437}, {0.6, 0x2F3B3F}, {1, 0x36444A}});
    const std::array<QColor, 6> layers{0x3A494F, 0x42535A, 0x4A5D64, 0x43555C, 0x394A50, 0x2F3D42};
    for (int i = 0; i < 6; ++i) {
        const Curve crest = canvas.waves(600 + 100 * i, 52, 1250 + 90 * i);
        const QPainterPath path = below(crest);
        canvas.shadow(path, {0, -4}, 26, faint(0x10181A, 0.55));
        canvas.land(crest, mixed(layers[i], 0xA9BDC2, 0.10), mixed(layers[i], 0x1B2528, 0.25), 260);
        // The slate's own layers follow its upper edge.
        for (int seam = 1; seam < 7; ++seam) {
            const Curve line = [&, drop = seam * canvas.between(11, 17)](qreal x) {
                return crest(x) + drop + drop * 0.10 * std::sin(x / 240 + seam);
            };
            canvas.line(lineAlong(line, canvas.between(-200, 900), canvas.between(1000, 2100)),
                        faint(0xB9CACE, 0.09), 2);
        }
        canvas.line(lineAlong(crest, -20, Canvas::width + 20), faint(0xC6D6DA, 0.20), 2.5);
    }
}
