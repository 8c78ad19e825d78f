// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures.h"
#include "plants.h"

#include <array>
#include <cmath>

void Pictures::morningHills(Canvas &canvas)
{
    canvas.gradient(0, 660, {{0, 0xDDE9E6}, {0.45, 0xEBEEE2}, {0.8, 0xFAEDD7}, {1, 0xFCE8CC}});
    canvas.glow({1610, 285}, 640, 0xFFDD9C, 0.75);
    canvas.disc({1610, 285}, 43, QColor(0xFFF5E1));

    const QColor mist(0xF3ECDA);
    const std::array<QColor, 6> hills{0xC9DED5, 0xAACDBF, 0x88B5A4, 0x679B88, 0x4C826F, 0x39705E};
    std::array<Curve, 6> crests;
    for (int i = 0; i < 6; ++i)
        crests[i] = canvas.waves(605 + 92 * i, 46 + 5 * i, 1150 + 130 * i);
    for (int i = 0; i < 6; ++i) {
        const QColor &hill = hills[i];
        if (i == 4)
            for (const qreal x : {96.0, 150.0, 186.0, 1602.0, 1668.0, 1702.0, 1760.0})
                Plants::fir(canvas, {x, crests[i](x) + 8}, canvas.between(58, 92), mixed(hill, mist, 0.12));
        canvas.land(crests[i], hill, mixed(hill, mist, 0.30 - 0.03 * i), 300);
    }
    for (const qreal x : {1080.0, 1124.0, 1150.0, 1196.0, 348.0, 392.0})
        Plants::fir(canvas, {x, crests[5](x) + 26}, canvas.between(90, 130), QColor(0x34685A));
    canvas.glow({1610, 500}, 900, 0xFFE6B8, 0.16);
}

namespace {

/// A dune with a sharp crest: the side away from the sun lies in the shade.
void dune(Canvas &canvas, QPointF peak, QPointF spineFoot, const Curve &crest, const QColor &lit,
          const QColor &shade)
{
    canvas.land(crest, mixed(lit, Qt::white, 0.10), lit, 380);
    QPainterPath side = lineAlong(crest, -20, peak.x());
    const QPointF way = spineFoot - peak;
    side.cubicTo(peak + QPointF(way.y() * 0.42, way.y() * 0.20),
                 peak + QPointF(way.x() - way.y() * 0.52, way.y() * 0.55), spineFoot);
    side.lineTo(-20, Canvas::height + 20);
    side.closeSubpath();
    QLinearGradient fill(peak.x(), 0, peak.x() - 1100, 0);
    fill.setColorAt(0, shade);
    fill.setColorAt(1, mixed(shade, lit, 0.85));
    canvas.shape(side, fill);
}

/// A crest that rises to `peak` and falls away on both sides of it.
Curve duneCrest(QPointF peak, qreal foot, qreal reach)
{
    return [=](qreal x) {
        const qreal way = (x - peak.x()) / reach;
        const qreal fall = way < 0 ? 1 / (1 + way * way * 2.2) : 1 / (1 + way * way * 1.1);
        return foot - (foot - peak.y()) * fall;
    };
}

void ripples(Canvas &canvas, const QColor &colour)
{
    const Curve wave = canvas.waves(0, 20, 760);
    for (int i = 0; i < 9; ++i) {
        const qreal depth = i / 8.0;
        const Curve line = [&](qreal x) {
            return 1088 + 116 * depth + wave(x + 60 * depth) * (1 - 0.3 * depth);
        };
        canvas.line(lineAlong(line, canvas.between(-400, 300), canvas.between(1500, 2200)),
                    faint(colour, 0.16), 2 + 3 * depth);
    }
}

} // namespace

void Pictures::dunes(Canvas &canvas)
{
    canvas.gradient(0, 700, {{0, 0xF5DDC8}, {0.5, 0xF9E1CC}, {0.85, 0xFCE9D6}, {1, 0xFDEDDC}});
    canvas.glow({1480, 360}, 620, 0xFFE9BE, 0.85);
    canvas.disc({1480, 360}, 48, QColor(0xFFF4DE));

    canvas.land(canvas.waves(640, 30, 1300), 0xF3D6B4, 0xF0CDA6, 200);
    canvas.land(canvas.waves(690, 34, 900), 0xEDC79C, 0xE9BD8D, 200);
    dune(canvas, {1330, 640}, {1500, 1230}, duneCrest({1330, 640}, 850, 560), 0xE9BA88, 0xD8A271);
    dune(canvas, {430, 740}, {760, 1230}, duneCrest({430, 740}, 990, 640), 0xDFAA76, 0xC88E5E);
    dune(canvas, {1800, 890}, {1900, 1230}, duneCrest({1800, 890}, 1075, 620), 0xD49A68, 0xBC8053);
    canvas.land(canvas.waves(1062, 26, 1500), 0xC88C5D, 0xB4774B, 160);
    ripples(canvas, 0x94603A);
}

namespace {

void flower(Canvas &canvas, QPointF head, qreal size, const QColor &petals, const QColor &heart)
{
    constexpr int count = 7;
    for (int i = 0; i < count; ++i) {
        canvas.painter().save();
        canvas.painter().translate(head);
        canvas.painter().scale(1, 0.72);
        canvas.painter().rotate(360.0 * i / count);
        QPainterPath petal;
        petal.addEllipse(QPointF(0, -size * 0.58), size * 0.22, size * 0.44);
        canvas.shape(petal, petals);
        canvas.painter().restore();
    }
    canvas.disc(head, size * 0.26, heart);
}

void flowerField(Canvas &canvas, const Curve &crest)
{
    const std::array<QColor, 4> grass{0x6C9849, 0x7CA755, 0x5F8A42, 0x8AB362};
    const std::array<QColor, 5> petals{0xFDFBF3, 0xFDFBF3, 0xE8D190, 0xA2AAD4, 0xD9917F};
    for (qreal depth = 0; depth < 1; depth += 0.0032) {
        const qreal x = canvas.between(-20, Canvas::width + 20);
        const qreal y = crest(x) + 30 + depth * (Canvas::height + 40 - crest(x));
        const qreal tall = 22 + 92 * depth;
        for (int i = 0; i < 3; ++i)
            Plants::blade(canvas, {x + canvas.around(0, 12), y}, tall * canvas.between(0.6, 1.1),
                          canvas.around(0, tall * 0.16), 2 + 4 * depth, canvas.oneOf(grass));
        if (!canvas.chance(0.55))
            continue;
        const QColor colour = canvas.oneOf(petals);
        const qreal size = 3.5 + 12.5 * depth;
        Plants::blade(canvas, {x, y}, tall, 0, 1.5 + 2 * depth, grass[0]);
        flower(canvas, {x, y - tall}, size, colour,
               colour == petals[0] ? QColor(0xDDBB7E) : mixed(colour, 0x6B4B3A, 0.35));
    }
}

} // namespace

void Pictures::meadow(Canvas &canvas)
{
    canvas.gradient(0, 680, {{0, 0xDFECEC}, {0.5, 0xEBF2E9}, {1, 0xF9F6E4}});
    canvas.glow({420, 640}, 900, 0xFFF3CC, 0.5);
    canvas.land(canvas.waves(610, 26, 1100), 0xDCE8C8, 0xD4E3B8, 150);
    const Curve second = canvas.waves(690, 42, 1500);
    for (qreal x = 90; x < 560; x += canvas.between(26, 54))
        Plants::tree(canvas, {x, second(x) + 4}, canvas.between(34, 60), 0xA9C58B, 0xC2D7A2);
    canvas.land(second, 0xC6DC9F, 0xB7D28B, 190);
    const Curve third = canvas.waves(800, 52, 1700);
    canvas.land(third, 0xA9CA7C, 0x97BC69, 220);
    Plants::tree(canvas, {1585, third(1585) + 10}, 250, 0x7FA75B, 0xABC97F);
    Plants::tree(canvas, {1745, third(1745) + 8}, 150, 0x86AD61, 0xB0CD85);
    const Curve front = canvas.waves(985, 34, 1400);
    canvas.land(front, 0x8DB55F, 0x739D4C, 230);
    flowerField(canvas, front);
}

namespace {

const QPointF vanishing(1240, 640);

/// A ray of the field from the vanishing point to the foot of the picture at `x`.
QPointF onRay(qreal x, qreal depth)
{
    return vanishing + QPointF((x - vanishing.x()) * depth, (Canvas::height + 60 - vanishing.y()) * depth);
}

QPainterPath wedge(qreal left, qreal right)
{
    QPainterPath path(onRay(left, 0.03));
    path.lineTo(onRay(right, 0.03));
    path.lineTo(onRay(right, 1));
    path.lineTo(onRay(left, 1));
    path.closeSubpath();
    return path;
}

/// One row of round bushes from the far end to the near one, each lit from above.
void lavenderRow(Canvas &canvas, qreal middle, qreal width)
{
    const std::array<QColor, 3> tops{0xB7A8DC, 0xAE9DD6, 0xC0B3E2};
    canvas.shape(wedge(middle - width * 0.5, middle + width * 0.5), QColor(0x8774B3));
    for (qreal depth = 0.07; depth < 1.2; depth *= 1.085) {
        const QPointF foot = onRay(middle + width * canvas.between(-0.03, 0.03), depth);
        const qreal half = width * depth * canvas.between(0.50, 0.58);
        if (foot.x() < -2 * half || foot.x() > Canvas::width + 2 * half)
            continue;
        const QRectF box(foot.x() - half, foot.y() - half * 1.15, 2 * half, half * 1.5);
        QPainterPath bush;
        bush.addEllipse(box);
        QLinearGradient fill(box.topLeft(), box.bottomLeft());
        fill.setColorAt(0, canvas.oneOf(tops));
        fill.setColorAt(0.55, 0x9683C2);
        fill.setColorAt(1, 0x806DAC);
        canvas.shape(bush, fill);
        for (int i = 0; depth > 0.28 && i < 9; ++i)
            Plants::blade(canvas,
                          foot + QPointF(half * canvas.between(-0.8, 0.8), -half * canvas.between(0.1, 0.6)),
                          half * 0.7, canvas.around(0, half * 0.10), half * 0.10, faint(0xC9BDE8, 0.55));
    }
}

} // namespace

void Pictures::lavender(Canvas &canvas)
{
    canvas.gradient(0, 680, {{0, 0xECE8F1}, {0.55, 0xF4ECEE}, {1, 0xFBF0DF}});
    canvas.glow({1240, 640}, 760, 0xFFE9C6, 0.6);
    canvas.land(canvas.waves(585, 30, 1250), 0xDAD1E6, 0xD8CBDF, 120);
    canvas.land(canvas.waves(622, 16, 900), 0xC5B9DB, 0xBFB2D6, 80);
    canvas.gradient(640, Canvas::height, {{0, 0xBBADD3}, {0.3, 0xB0A1CB}, {1, 0xA08FBF}});
    for (const qreal x : {1480.0, 1512.0, 1666.0})
        Plants::blade(canvas, {x, 644}, canvas.between(66, 92), 0, 26, 0x8F9C93);
    QPainterPath house;
    house.addRect(1545, 606, 92, 38);
    canvas.shape(house, QColor(0xE8D9C6));
    QPainterPath roof;
    roof.addPolygon(QPolygonF{{1537, 608}, {1560, 586}, {1624, 586}, {1646, 608}});
    canvas.shape(roof, QColor(0xC9A08C));
    for (int i = 30; i >= 0; --i)
        for (const int side : {-1, 1})
            if (i > 0 || side > 0)
                lavenderRow(canvas, vanishing.x() + side * i * 300.0, 210);
    canvas.gradient(638, 800, {{0, faint(0xE9DDE4, 0.75)}, {1, faint(0xE9DDE4, 0)}});
}
