// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures.h"
#include "plants.h"

#include <array>
#include <cmath>

namespace {

/// A glint on the water: a lying lens, `length` pixels wide.
void glint(Canvas &canvas, QPointF middle, qreal length, qreal thickness, const QColor &colour)
{
    QPainterPath lens(middle - QPointF(length / 2, 0));
    lens.quadTo(middle - QPointF(0, thickness), middle + QPointF(length / 2, 0));
    lens.quadTo(middle + QPointF(0, thickness), middle - QPointF(length / 2, 0));
    canvas.shape(lens, colour);
}

/// Glints all over the water between `top` and `foot`, larger towards the viewer.
void ripples(Canvas &canvas, qreal top, qreal foot, int count, const QColor &colour, qreal strength)
{
    for (int i = 0; i < count; ++i) {
        const qreal depth = std::pow(canvas.between(0, 1), 0.8);
        glint(canvas, {canvas.between(-80, Canvas::width + 80), top + (foot - top) * depth},
              (60 + 260 * depth) * canvas.between(0.5, 1.2), 1.2 + 4.2 * depth,
              faint(colour, strength * canvas.between(0.4, 1)));
    }
}

void sunPath(Canvas &canvas, qreal x, qreal horizon)
{
    for (int i = 0; i < 460; ++i) {
        const qreal depth = std::pow(canvas.between(0, 1), 1.25);
        const qreal aside = canvas.around(0, 34 + 130 * depth);
        glint(canvas, {x + aside, horizon + 4 + 420 * depth}, (22 + 150 * depth) * canvas.between(0.4, 1.1),
              0.9 + 3.4 * depth, faint(0xFFF9E9, canvas.between(0.22, 0.7) * (1 - 0.55 * depth)));
    }
}

void sailingBoat(Canvas &canvas, QPointF water)
{
    const auto triangle = [&](QPointF one, QPointF two, QPointF three, const QColor &colour) {
        QPainterPath path;
        path.addPolygon(QPolygonF{water + one, water + two, water + three});
        canvas.shape(path, colour);
    };
    triangle({2, -78}, {2, -11}, {40, -11}, 0xFDF9F0);
    triangle({-2, -70}, {-2, -11}, {-28, -11}, 0xEDE6DA);
    QPainterPath hull(water + QPointF(-34, -8));
    hull.lineTo(water + QPointF(44, -8));
    hull.quadTo(water + QPointF(36, 3), water + QPointF(22, 3));
    hull.lineTo(water + QPointF(-22, 3));
    canvas.shape(hull, QColor(0xB9836A));
    glint(canvas, water + QPointF(4, 8), 90, 3, faint(0x5F8F9A, 0.4));
}

/// Foam and wet sand in the corner of the bay.
void beach(Canvas &canvas)
{
    const auto shore = [&canvas](qreal rise) {
        return [wave = canvas.waves(0, 9, 520), rise](qreal x) {
            return 1120 + rise + 90 * std::pow(std::max(0.0, x / Canvas::width), 1.7) + wave(x) -
                   60 * std::exp(-x / 420);
        };
    };
    canvas.land(shore(-66), faint(0xB9DAD8, 0.55), faint(0xC9E0DA, 0.9), 90);
    canvas.land(shore(-30), 0xC4DCD6, 0xD3E0D6, 60);
    const Curve foam = shore(-8);
    canvas.line(lineAlong(foam, -20, Canvas::width + 20), faint(0xFCFBF5, 0.85), 13);
    canvas.land(foam, 0xD9CFB8, 0xE6DCC6, 60);
    canvas.land(shore(34), 0xE6DBC3, 0xEFE6D2, 70);
}

} // namespace

void Pictures::quietSea(Canvas &canvas)
{
    constexpr qreal horizon = 612;
    canvas.gradient(0, horizon, {{0, 0xD9E9EE}, {0.5, 0xE8F0EF}, {0.85, 0xF7F2E3}, {1, 0xFBF1DC}});
    canvas.glow({1320, horizon - 130}, 620, 0xFFEFC4, 0.8);
    canvas.disc({1320, horizon - 130}, 46, QColor(0xFFF9EA));
    const Curve far = canvas.waves(0, 16, 420);
    canvas.land(
        [&](qreal x) { return horizon + 10 - std::max(0.0, 70 * (x - 1480) / 440 + far(x)) * (x > 1480); },
        0xC3D6DA, 0xBFD5D9, 60);
    canvas.gradient(horizon, Canvas::height,
                    {{0, 0xCBE0E2}, {0.12, 0xB5D3D8}, {0.5, 0x8ABAC3}, {1, 0x79AEBA}});
    canvas.glow({1320, horizon + 20}, 560, 0xFFF1D2, 0.45);
    ripples(canvas, horizon + 12, 1120, 150, 0xE9F4F2, 0.5);
    ripples(canvas, horizon + 30, 1120, 90, 0x5E99A8, 0.35);
    sunPath(canvas, 1320, horizon);
    sailingBoat(canvas, {560, 664});
    beach(canvas);
}

namespace {

/// Mountains whose right sides are in the light.
void mountains(Canvas &canvas, const Curve &crest, const QColor &shade, const QColor &light, qreal foot)
{
    canvas.land(crest, shade, mixed(shade, light, 0.45), foot - 400);
    for (qreal x = 0; x < Canvas::width; x += 4) {
        if (!(crest(x) < crest(x - 4) && crest(x) <= crest(x + 4)))
            continue;
        const qreal tall = foot - crest(x);
        QPainterPath face(QPointF(x, crest(x)));
        for (qreal right = x; crest(right + 4) >= crest(right) && right < x + 400; right += 4)
            face.lineTo(right + 4, crest(right + 4));
        face.lineTo(x + tall * 0.50, foot);
        face.lineTo(x + tall * 0.10, foot);
        face.lineTo(x - tall * 0.06, crest(x) + tall * 0.62);
        face.lineTo(x + tall * 0.07, crest(x) + tall * 0.36);
        face.closeSubpath();
        QLinearGradient fill(0, crest(x), 0, foot);
        fill.setColorAt(0, light);
        fill.setColorAt(1, faint(light, 0.1));
        canvas.shape(face, fill);
    }
}

void farShore(Canvas &canvas)
{
    mountains(canvas, canvas.peaks(690, 250, 330), 0xBDCDDB, 0xD3DEE7, 690);
    mountains(canvas, canvas.peaks(690, 165, 420), 0xA3BACA, 0xBACBD7, 690);
    const Curve wood = canvas.waves(648, 18, 760);
    for (qreal x = 0; x < Canvas::width; x += canvas.between(9, 20))
        Plants::fir(canvas, {x, wood(x) + 14}, canvas.between(20, 46), 0x7F9FA2);
    canvas.land(wood, 0x7F9FA2, 0x8AA8AB, 60);
}

/// What stands above `horizon`, upside down in the water below and paler.
void mirror(Canvas &canvas, const QImage &above, qreal horizon, qreal reach)
{
    canvas.painter().save();
    canvas.painter().setOpacity(0.62);
    canvas.painter().drawImage(QRectF(0, horizon, Canvas::width, reach), above.mirrored(false, true));
    canvas.painter().restore();
}

void nearShore(Canvas &canvas)
{
    const Curve shore = [wave = canvas.waves(0, 12, 700)](qreal x) {
        return 1172 + wave(x) - 120 * std::exp(-x / 300) - 165 * std::exp((x - Canvas::width) / 260);
    };
    for (const auto &[x, tall] : {std::pair{26.0, 330.0},
                                  {112.0, 250.0},
                                  {196.0, 170.0},
                                  {1900.0, 400.0},
                                  {1822.0, 290.0},
                                  {1740.0, 215.0},
                                  {1668.0, 140.0}})
        Plants::fir(canvas, {x, shore(x) + 18}, tall, 0x587F72);
    canvas.land(shore, 0x6B9178, 0x557C66, 160);
    for (int i = 0; i < 240; ++i) {
        const qreal x = canvas.between(0, Canvas::width);
        Plants::blade(canvas, {x, shore(x) + 10}, canvas.between(14, 46), canvas.around(0, 7), 3, 0x64896F);
    }
}

} // namespace

void Pictures::lake(Canvas &canvas)
{
    constexpr qreal horizon = 670;
    canvas.gradient(0, horizon, {{0, 0xD8E4EE}, {0.5, 0xE8ECEE}, {1, 0xF7EEE4}});
    canvas.glow({1500, 560}, 700, 0xFFF0D6, 0.6);
    farShore(canvas);
    const QRect above(0, int(horizon) - 360, Canvas::width, 360);
    const QImage reflected = canvas.copy(above);
    canvas.gradient(horizon, Canvas::height, {{0, 0xC5D8E0}, {0.4, 0x9FC0CD}, {1, 0x7FAAB9}});
    mirror(canvas, reflected, horizon, 300);
    canvas.gradient(horizon, Canvas::height, {{0, faint(0xA9C6D1, 0.25)}, {0.55, 0x94B8C6}, {1, 0x7BA6B5}});
    canvas.gradient(horizon - 16, horizon + 26,
                    {{0, faint(0xF2F1EC, 0)}, {0.45, faint(0xF2F1EC, 0.7)}, {1, faint(0xF2F1EC, 0)}});
    ripples(canvas, horizon + 20, 1170, 150, 0xE9F1F2, 0.45);
    nearShore(canvas);
}

namespace {

void cattail(Canvas &canvas, QPointF foot, qreal tall, qreal lean)
{
    Plants::blade(canvas, foot, tall, lean, 6, 0x6E9A80);
    canvas.painter().save();
    canvas.painter().translate(foot + QPointF(lean * 0.84, -tall * 0.93));
    canvas.painter().rotate(lean / tall * 70);
    QPainterPath head;
    head.addRoundedRect(QRectF(-8.5, -42, 17, 84), 8.5, 8.5);
    QLinearGradient fill(-9, 0, 9, 0);
    fill.setColorAt(0, 0x8A6A50);
    fill.setColorAt(1, 0xB08D6C);
    canvas.shape(head, fill);
    canvas.painter().restore();
}

/// A bank of blades, higher towards both sides of the picture.
void reedBank(Canvas &canvas, int count, qreal foot, qreal tall, qreal width, std::span<const QColor> colours)
{
    for (int i = 0; i < count; ++i) {
        const qreal x = canvas.between(-40, Canvas::width + 40);
        const qreal side = std::abs(x / Canvas::width - 0.5) * 2;
        const qreal share = 0.35 + 0.65 * side * side;
        if (canvas.chance(0.75 * (1 - share)))
            continue;
        Plants::blade(canvas, {x, foot}, tall * share * canvas.between(0.7, 1.05),
                      canvas.around(20, 46) * share, width, canvas.oneOf(colours));
    }
}

} // namespace

void Pictures::reeds(Canvas &canvas)
{
    canvas.gradient(0, 720, {{0, 0xE1EEE7}, {0.6, 0xE6F1E7}, {1, 0xF1F3E4}});
    canvas.glow({980, 700}, 760, 0xFFF7DC, 0.65);
    canvas.land(canvas.waves(664, 14, 900), 0xD2E4D8, 0xCFE2D6, 60);
    canvas.land(canvas.waves(692, 9, 640), 0xBFD8CA, 0xC3DBCD, 40);
    canvas.gradient(716, Canvas::height, {{0, 0xDCEBDF}, {0.4, 0xC4DED0}, {1, 0xA5CBBA}});
    ripples(canvas, 730, 1190, 130, 0xF4F9EE, 0.5);

    const std::array<QColor, 3> back{0xB4D2C2, 0xA8CAB8, 0xBDD7C8};
    const std::array<QColor, 3> middle{0x8FB9A3, 0x82AF98, 0x9AC0A9};
    const std::array<QColor, 4> front{0x66967E, 0x5A8B73, 0x78A58B, 0x6E9A80};
    reedBank(canvas, 260, 1180, 620, 6, back);
    reedBank(canvas, 230, 1210, 540, 8, middle);
    for (const auto &[x, tall, lean] : {std::array{92.0, 590.0, 26.0},
                                        {176.0, 500.0, -22.0},
                                        {300.0, 410.0, 30.0},
                                        {1836.0, 620.0, -24.0},
                                        {1752.0, 520.0, 34.0},
                                        {1640.0, 420.0, -16.0}})
        cattail(canvas, {x, 1210}, tall, lean);
    reedBank(canvas, 260, 1225, 400, 10, front);
}
