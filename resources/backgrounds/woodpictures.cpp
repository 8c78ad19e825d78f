// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures.h"
#include "plants.h"

#include <array>
#include <cmath>

namespace {

/// A trunk through the whole height of the picture; `near` runs from 0 far away to 1.
void birch(Canvas &canvas, qreal x, qreal foot, qreal width, qreal near)
{
    const qreal lean = canvas.around(0, 14);
    QPainterPath trunk(QPointF(x - width * 0.62, foot));
    trunk.quadTo(x - width * 0.44, foot - 120, x - width * 0.42 + lean, -20);
    trunk.lineTo(x + width * 0.42 + lean, -20);
    trunk.quadTo(x + width * 0.44, foot - 120, x + width * 0.62, foot);
    const QColor bark = mixed(0xDFE6D6, 0xFCFBF5, near);
    QLinearGradient fill(x - width / 2, 0, x + width / 2, 0);
    fill.setColorAt(0, mixed(bark, 0xA9AFA0, 0.25 + 0.25 * near));
    fill.setColorAt(0.4, bark);
    fill.setColorAt(0.75, bark);
    fill.setColorAt(1, mixed(bark, 0xBFC4B4, 0.4));
    canvas.shape(trunk, fill);

    canvas.painter().save();
    canvas.painter().setClipPath(trunk);
    for (qreal y = canvas.between(0, 60); y < foot; y += canvas.between(26, 78) * (0.6 + width / 60)) {
        const qreal middle =
            x + lean * (1 - y / foot) + (canvas.chance(0.5) ? -1 : 1) * width * canvas.between(0.2, 0.5);
        QPainterPath mark;
        mark.addEllipse(QPointF(middle, y), width * canvas.between(0.16, 0.40),
                        canvas.between(1.6, 2.6) + near * canvas.between(0.5, 3.5));
        canvas.shape(mark, faint(0x6C6F62, 0.25 + 0.45 * near));
    }
    canvas.painter().restore();
}

void birches(Canvas &canvas, qreal foot, qreal spacing, qreal width, qreal near)
{
    for (qreal x = canvas.between(-20, spacing * 0.6); x < Canvas::width + 40;
         x += spacing * canvas.between(0.35, 1.6))
        birch(canvas, x, foot + canvas.around(0, 14), width * canvas.between(0.7, 1.25), near);
}

void undergrowth(Canvas &canvas, const Curve &ground)
{
    const std::array<QColor, 4> greens{0x8DAE6B, 0x7FA25F, 0x9DBB7B, 0x739655};
    for (int i = 0; i < 420; ++i) {
        const qreal x = canvas.between(-20, Canvas::width + 20);
        const qreal depth = canvas.between(0, 1);
        Plants::blade(canvas, {x, ground(x) + 20 + depth * (Canvas::height + 20 - ground(x))},
                      canvas.between(24, 70) * (0.5 + depth), canvas.around(0, 14), 3 + 3 * depth,
                      canvas.oneOf(greens));
    }
    for (int i = 0; i < 90; ++i) {
        const qreal x = canvas.between(0, Canvas::width);
        canvas.disc({x, ground(x) + canvas.between(20, 190)}, canvas.between(3, 6.5), QColor(0xFBFAF1));
    }
}

} // namespace

void Pictures::birchWood(Canvas &canvas)
{
    const QColor mist(0xEDF2E4);
    canvas.gradient(0, Canvas::height, {{0, mist}, {0.55, 0xE2EBD3}, {1, 0xCFDDB5}});
    canvas.glow({1240, 720}, 800, 0xFFFBE2, 0.7);
    birches(canvas, 960, 62, 17, 0);
    canvas.gradient(600, 1010, {{0, faint(0xDDE8CB, 0)}, {1, faint(0xD3E1BC, 0.75)}});
    canvas.land(canvas.waves(960, 16, 1100), 0xC9DAAD, 0xBCD09C, 120);
    birches(canvas, 1030, 150, 34, 0.55);
    canvas.land(canvas.waves(1022, 18, 1300), 0xB4CB92, 0xA7C083, 120);
    birches(canvas, 1100, 330, 58, 1);
    // The wood rises into the mist, where the date is written.
    canvas.gradient(
        0, 860,
        {{0, faint(mist, 0.97)}, {0.52, faint(mist, 0.93)}, {0.68, faint(mist, 0.70)}, {1, faint(mist, 0)}});
    const Curve ground = canvas.waves(1086, 18, 1500);
    canvas.land(ground, 0xA0BC7B, 0x84A562, 140);
    undergrowth(canvas, ground);
}

namespace {

void fallenLeaf(Canvas &canvas, QPointF place, qreal length, qreal turn, const QColor &colour, qreal opacity)
{
    const auto kind = canvas.chance(0.4)   ? Plants::Leaf::Maple
                      : canvas.chance(0.5) ? Plants::Leaf::Oak
                                           : Plants::Leaf::Beech;
    const QPainterPath outline = Plants::leaf(kind, length);
    canvas.painter().save();
    canvas.painter().setOpacity(opacity);
    canvas.painter().translate(place);
    canvas.painter().rotate(turn);
    canvas.painter().scale(canvas.between(0.55, 1), 1);
    QLinearGradient fill(-length / 2, -length / 2, length / 2, length / 2);
    fill.setColorAt(0, mixed(colour, 0xF3D9A4, 0.35));
    fill.setColorAt(1, colour);
    canvas.shape(outline, fill);
    QPainterPath rib(QPointF(0, length * 0.66));
    rib.lineTo(0, -length * 0.36);
    canvas.line(rib, faint(mixed(colour, 0x7A4A2A, 0.45), 0.6), std::max(1.0, length / 34));
    canvas.painter().restore();
}

const std::array<QColor, 6> autumnColours{0xCB8B50, 0xDCA661, 0xBC7148, 0xE2BD7C, 0xB0694B, 0xC9A35A};

void fallingLeaves(Canvas &canvas)
{
    for (int i = 0; i < 95; ++i) {
        const qreal depth = std::sqrt(canvas.between(0, 1));
        const QPointF place(canvas.between(0, Canvas::width), 500 + 560 * depth);
        fallenLeaf(canvas, place, 16 + 40 * depth * canvas.between(0.5, 1), canvas.between(0, 360),
                   canvas.oneOf(autumnColours), 0.30 + 0.6 * depth);
    }
}

} // namespace

void Pictures::autumnLeaves(Canvas &canvas)
{
    canvas.gradient(0, Canvas::height, {{0, 0xF8F0DF}, {0.45, 0xF7EAD0}, {1, 0xEED6A8}});
    canvas.glow({1480, 620}, 860, 0xFFF0C8, 0.7);
    canvas.land(canvas.waves(840, 40, 1500), 0xF0DDB6, 0xEBD3A5, 200);
    const Curve slope = canvas.waves(960, 36, 1300);
    for (const auto &[x, tall] : {std::pair{1500.0, 330.0}, {1690.0, 250.0}, {250.0, 290.0}, {120.0, 200.0}})
        Plants::tree(canvas, {x, slope(x) + 10}, tall, 0xE0B77C, 0xEDCD98);
    canvas.land(slope, 0xE7CB98, 0xDDB983, 200);
    fallingLeaves(canvas);
    const Curve ground = canvas.waves(1096, 20, 1100);
    canvas.land(ground, 0xD9B27A, 0xCC9F66, 130);
    for (int i = 0; i < 330; ++i) {
        const qreal x = canvas.between(-20, Canvas::width + 20);
        const qreal depth = i / 330.0;
        fallenLeaf(canvas, {x, ground(x) + 6 + depth * (Canvas::height + 10 - ground(x))},
                   canvas.between(34, 58) * (0.6 + 0.6 * depth), canvas.between(0, 360),
                   mixed(canvas.oneOf(autumnColours), 0xDDB57C, 0.35 * (1 - depth)), 0.95);
    }
}

namespace {

/// A hanging twig: a long bow with a pair of narrow leaves every few pixels.
void willowTwig(Canvas &canvas, QPointF top, qreal length, qreal sway, const QColor &colour, qreal size)
{
    QPainterPath bow(top);
    bow.cubicTo(top + QPointF(-sway * 0.4, length * 0.3), top + QPointF(-sway, length * 0.6),
                top + QPointF(-sway * 0.7, length));
    canvas.line(bow, colour, size * 0.16);
    QPainterPath leaf;
    leaf.moveTo(0, 0);
    leaf.quadTo(size * 0.30, size * 0.7, 0, size * 1.9);
    leaf.quadTo(-size * 0.22, size * 0.7, 0, 0);
    bool isLeft = false;
    for (qreal way = length * 0.10; way < length; way += size * canvas.between(0.5, 0.8)) {
        isLeft = !isLeft;
        canvas.painter().save();
        canvas.painter().translate(bow.pointAtPercent(bow.percentAtLength(way)));
        canvas.painter().rotate((isLeft ? 1 : -1) * canvas.between(10, 34));
        canvas.shape(leaf, canvas.chance(0.4) ? mixed(colour, 0xE4EFC9, 0.30) : colour);
        canvas.painter().restore();
    }
}

void willowCrown(Canvas &canvas, int count, const QColor &colour, qreal size, qreal reach)
{
    for (int i = 0; i < count; ++i) {
        const qreal x = 1980 - 600 * std::pow(canvas.between(0, 1), 1.3);
        const qreal length = (reach - 0.45 * (1980 - x)) * canvas.between(0.72, 1.05);
        willowTwig(canvas, {x, -40}, length, canvas.around(30, 34), colour, size);
    }
}

void pondBank(Canvas &canvas)
{
    const Curve bank = [wave = canvas.waves(0, 14, 800)](qreal x) {
        return 1176 + wave(x) - 150 * std::exp((x - Canvas::width) / 420);
    };
    canvas.land(bank, 0xA6C48E, 0x8BAE74, 180);
    const std::array<QColor, 3> greens{0x8DB077, 0x9DBD86, 0x7EA268};
    for (int i = 0; i < 330; ++i) {
        const qreal x = canvas.between(-10, Canvas::width + 10);
        Plants::blade(canvas, {x, bank(x) + canvas.between(8, 60)}, canvas.between(22, 62),
                      canvas.around(0, 12), 4, canvas.oneOf(greens));
    }
}

} // namespace

void Pictures::willow(Canvas &canvas)
{
    const QColor sky(0xE8F1E8);
    canvas.gradient(0, 780, {{0, sky}, {0.6, 0xECF3E6}, {1, 0xF5F5E4}});
    canvas.glow({760, 760}, 820, 0xFFF9DF, 0.6);
    canvas.land(canvas.waves(740, 26, 900), 0xDAE8D6, 0xD5E5D2, 80);
    canvas.land(canvas.waves(790, 16, 1200), 0xC6DBC0, 0xC9DEC6, 60);
    canvas.gradient(826, Canvas::height, {{0, 0xDCEBE0}, {0.5, 0xC5DED2}, {1, 0xB2D1C3}});
    for (int i = 0; i < 90; ++i) {
        const qreal y = canvas.between(836, 1180);
        QPainterPath ripple;
        ripple.addEllipse(QPointF(canvas.between(0, Canvas::width), y), canvas.between(50, 190),
                          1.5 + (y - 830) / 130);
        canvas.shape(ripple, faint(0xF3F9F1, canvas.between(0.15, 0.45)));
    }
    willowCrown(canvas, 17, 0xBDD4B0, 19, 830);
    willowCrown(canvas, 14, 0xA2C191, 24, 980);
    willowCrown(canvas, 9, 0x8DB07B, 29, 1100);
    // The upper part of the crown dissolves in the light, so that the ground of the date stays even.
    canvas.gradient(0, 800, {{0, faint(sky, 0.90)}, {0.56, faint(sky, 0.82)}, {1, faint(sky, 0)}});
    pondBank(canvas);
}
