// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures.h"
#include "plants.h"

#include <array>
#include <cmath>

namespace {

void snowyMountains(Canvas &canvas, const Curve &crest, const QColor &shade, const QColor &light)
{
    canvas.land(crest, shade, mixed(shade, 0xF3F4F6, 0.6), 330);
    for (qreal x = 0; x < Canvas::width; x += 4) {
        if (!(crest(x) < crest(x - 4) && crest(x) <= crest(x + 4)))
            continue;
        const qreal top = crest(x);
        QPainterPath face(QPointF(x, top));
        for (qreal right = x; crest(right + 4) >= crest(right) && right < x + 400; right += 4)
            face.lineTo(right + 4, crest(right + 4));
        face.lineTo(x + 150, top + 330);
        face.lineTo(x + 24, top + 250);
        face.lineTo(x + 52, top + 150);
        face.lineTo(x - 14, top + 92);
        face.closeSubpath();
        QLinearGradient fill(0, top, 0, top + 330);
        fill.setColorAt(0, light);
        fill.setColorAt(1, faint(light, 0));
        canvas.shape(face, fill);
    }
}

void cabin(Canvas &canvas, QPointF foot)
{
    const auto polygon = [&](std::initializer_list<QPointF> points, const QColor &colour) {
        QPolygonF moved;
        for (const QPointF &point : points)
            moved << foot + point;
        QPainterPath path;
        path.addPolygon(moved);
        canvas.shape(path, colour);
    };
    canvas.glow(foot + QPointF(10, -30), 150, 0xFFE3A8, 0.5);
    polygon({{-70, 4}, {-70, -52}, {-30, -94}, {10, -52}, {10, 4}}, 0xA98F7E);
    polygon({{10, 4}, {10, -52}, {92, -52}, {92, 4}}, 0xB99F8C);
    polygon({{62, -80}, {62, -118}, {80, -118}, {80, -80}}, 0xA08B80);
    polygon({{-30, -104}, {66, -104}, {108, -50}, {10, -50}}, 0xFAFBFD);
    polygon({{-30, -104}, {-84, -46}, {-74, -42}, {-30, -90}, {14, -46}, {14, -54}}, 0xEEF2F7);
    polygon({{32, -34}, {32, -12}, {54, -12}, {54, -34}}, 0xFFDF9E);
    polygon({{66, -34}, {66, -12}, {84, -12}, {84, -34}}, 0xFFDF9E);
    polygon({{-44, 4}, {-44, -34}, {-20, -34}, {-20, 4}}, 0x8B7265);
    for (int puff = 0; puff < 6; ++puff)
        canvas.glow(foot + QPointF(72 + puff * puff * 3.2, -130 - puff * 26), 22 + 9 * puff, 0xFFFFFF,
                    0.55 - 0.07 * puff);
}

void firRow(Canvas &canvas, const Curve &ground, std::span<const QPointF> trees, const QColor &colour,
            const QColor &snow)
{
    for (const QPointF &tree : trees) {
        const QPointF foot(tree.x(), ground(tree.x()) + tree.y() * 0.07);
        QPainterPath shade(foot + QPointF(-tree.y() * 0.14, 0));
        shade.quadTo(foot + QPointF(-tree.y() * 0.5, tree.y() * 0.10),
                     foot + QPointF(-tree.y() * 0.95, tree.y() * 0.16));
        shade.quadTo(foot + QPointF(-tree.y() * 0.3, tree.y() * 0.12), foot + QPointF(tree.y() * 0.14, 0));
        canvas.shape(shade, faint(0xB9CBDC, 0.55));
        Plants::fir(canvas, foot, tree.y(), colour, snow);
    }
}

} // namespace

void Pictures::snowfield(Canvas &canvas)
{
    canvas.gradient(0, 700, {{0, 0xDFE7F1}, {0.5, 0xEAECF2}, {0.85, 0xF8ECE8}, {1, 0xFBEDE4}});
    canvas.glow({1500, 600}, 720, 0xFFEBD2, 0.65);
    snowyMountains(canvas, canvas.peaks(720, 230, 360), 0xD3DDE9, 0xEEF1F5);
    snowyMountains(canvas, canvas.peaks(760, 170, 420), 0xC5D3E2, 0xE4EBF2);
    const Curve wood = canvas.waves(742, 18, 900);
    for (qreal x = -10; x < Canvas::width + 20; x += canvas.between(12, 34))
        Plants::fir(canvas, {x, wood(x) + 12}, canvas.between(36, 84), 0xB7C8D5, 0xDCE6EE);
    canvas.land(wood, 0xE3EBF3, 0xEDF2F7, 130);
    const Curve middle = canvas.waves(872, 34, 1500);
    canvas.land(middle, 0xF6F9FC, 0xE2EAF3, 190);
    const std::array<QPointF, 6> firs{
        {{120, 190}, {215, 130}, {306, 165}, {1560, 150}, {1640, 215}, {1836, 170}}};
    firRow(canvas, middle, firs, 0x9FB5C3, 0xF7FAFD);
    cabin(canvas, {1420, middle(1420) + 22});
    canvas.land(canvas.waves(985, 40, 1700), 0xFBFDFE, 0xDFE8F2, 230);
    const Curve front = canvas.waves(1090, 30, 1900);
    canvas.land(front, 0xFFFFFF, 0xE4ECF4, 160);
    const std::array<QPointF, 5> nearFirs{{{40, 330}, {150, 210}, {1740, 200}, {1868, 380}, {1800, 260}}};
    firRow(canvas, front, nearFirs, 0x8AA4B3, 0xFAFCFE);
    for (int flake = 0; flake < 230; ++flake)
        canvas.disc({canvas.between(0, Canvas::width), canvas.between(520, 1190)}, canvas.between(1.5, 4.5),
                    faint(Qt::white, canvas.between(0.4, 0.9)));
}

namespace {

void stars(Canvas &canvas)
{
    for (int i = 0; i < 420; ++i) {
        const QPointF place(canvas.between(0, Canvas::width), canvas.between(0, 860));
        const qreal size = canvas.chance(0.08) ? canvas.between(1.7, 2.5) : canvas.between(0.7, 1.5);
        // The date and the sentence under it stand at the upper left.
        if (place.y() < 500 && place.x() < 1420)
            continue;
        canvas.disc(place, size, faint(canvas.chance(0.3) ? 0xFFE9C9 : 0xDCE6FA, canvas.between(0.25, 0.85)));
        if (size > 1.7)
            canvas.glow(place, 11, 0xDCE6FA, 0.30);
    }
}

void moon(Canvas &canvas, QPointF centre, qreal radius)
{
    canvas.glow(centre, 270, 0x9FB2D8, 0.34);
    QPainterPath whole;
    whole.addEllipse(centre, radius, radius);
    QPainterPath dark;
    dark.addEllipse(centre + QPointF(radius * 0.44, -radius * 0.20), radius * 0.88, radius * 0.88);
    canvas.shape(whole.subtracted(dark), QColor(0xF6E9C6));
}

void nightHouse(Canvas &canvas, QPointF foot, qreal width, int windows)
{
    const QColor wall(0x141D30);
    canvas.glow(foot - QPointF(0, width * 0.25), width * 1.5, 0xE9C27C, 0.20);
    QPainterPath house;
    house.addPolygon(QPolygonF{foot + QPointF(-width / 2, 8), foot + QPointF(-width / 2, -width * 0.42),
                               foot + QPointF(-width * 0.28, -width * 0.74),
                               foot + QPointF(width * 0.28, -width * 0.74),
                               foot + QPointF(width / 2, -width * 0.42), foot + QPointF(width / 2, 8)});
    house.addRect(foot.x() + width * 0.18, foot.y() - width * 0.92, width * 0.10, width * 0.25);
    house.setFillRule(Qt::WindingFill);
    canvas.shape(house, wall);
    for (int i = 0; i < windows; ++i) {
        const QRectF pane(foot.x() - width * 0.36 + i * width * 0.26, foot.y() - width * 0.33, width * 0.15,
                          width * 0.18);
        QPainterPath window;
        window.addRect(pane);
        canvas.shape(window, QColor(0xF0CE8B));
        QPainterPath bars(QPointF(pane.center().x(), pane.top()));
        bars.lineTo(pane.center().x(), pane.bottom());
        canvas.line(bars, wall, width * 0.016);
    }
}

} // namespace

void Pictures::nightSky(Canvas &canvas)
{
    canvas.gradient(0, 900, {{0, 0x141E34}, {0.45, 0x1C2947}, {0.8, 0x2A3B60}, {1, 0x3A4C72}});
    canvas.glow({1250, 900}, 820, 0x5D6C93, 0.40);
    stars(canvas);
    moon(canvas, {1640, 330}, 52);
    canvas.land(canvas.waves(800, 44, 1250), 0x30426A, 0x2C3D62, 180);
    const Curve second = canvas.waves(880, 40, 1000);
    for (qreal x = 0; x < Canvas::width; x += canvas.between(14, 60))
        Plants::fir(canvas, {x, second(x) + 10}, canvas.between(26, 58), 0x25355A);
    canvas.land(second, 0x25355A, 0x213052, 160);
    canvas.land(canvas.waves(975, 34, 1500), 0x1D2A48, 0x19253F, 160);
    const Curve front = canvas.waves(1078, 26, 1800);
    for (const auto &[x, tall] : {std::pair{60.0, 260.0},
                                  {140.0, 180.0},
                                  {1886.0, 300.0},
                                  {1800.0, 190.0},
                                  {560.0, 130.0},
                                  {620.0, 170.0}})
        Plants::fir(canvas, {x, front(x) + 16}, tall, 0x131C2F);
    nightHouse(canvas, {330, front(330) + 6}, 130, 3);
    nightHouse(canvas, {1560, front(1560) + 8}, 150, 3);
    nightHouse(canvas, {1330, front(1330) + 6}, 96, 2);
    canvas.land(front, 0x151F34, 0x0F1726, 130);
}

namespace {

/// A heap of lumps on a flat foot, white in the light from above.
void cumulus(Canvas &canvas, QPointF middle, qreal width, const QColor &light, const QColor &shade)
{
    QPainterPath cloud;
    cloud.setFillRule(Qt::WindingFill);
    const qreal tall = width * canvas.between(0.30, 0.40);
    for (int i = 0; i <= 10; ++i) {
        const qreal way = i / 5.0 - 1;
        const qreal rise = tall * (1 - way * way) * canvas.between(0.45, 0.8);
        const qreal lump = width * canvas.between(0.10, 0.16) * (1.1 - 0.45 * way * way);
        cloud.addEllipse(middle + QPointF(way * width * 0.42, -rise), lump, lump * 0.94);
    }
    cloud.addRoundedRect(
        QRectF(middle.x() - width * 0.52, middle.y() - width * 0.13, width * 1.04, width * 0.19),
        width * 0.09, width * 0.09);
    const QRectF box = cloud.boundingRect();
    QLinearGradient fill(0, box.top(), 0, box.bottom());
    fill.setColorAt(0, light);
    fill.setColorAt(0.45, mixed(light, shade, 0.22));
    fill.setColorAt(1, shade);
    canvas.shape(cloud, fill);
}

void balloon(Canvas &canvas, QPointF centre, qreal radius)
{
    QPainterPath envelope;
    envelope.moveTo(centre + QPointF(-radius * 0.22, radius * 1.5));
    envelope.cubicTo(centre + QPointF(-radius * 0.5, radius * 0.9), centre + QPointF(-radius, radius * 0.6),
                     centre + QPointF(-radius, 0));
    envelope.arcTo(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), 180, -180);
    envelope.cubicTo(centre + QPointF(radius, radius * 0.6), centre + QPointF(radius * 0.5, radius * 0.9),
                     centre + QPointF(radius * 0.22, radius * 1.5));
    envelope.closeSubpath();
    canvas.shape(envelope, QColor(0xE6A38D));
    for (const qreal half : {0.62, 0.22}) {
        QPainterPath gore;
        gore.addEllipse(centre + QPointF(0, radius * 0.25), radius * half, radius * 1.27);
        canvas.shape(gore.intersected(envelope), half > 0.5 ? QColor(0xF6E3C8) : QColor(0xD98C78));
    }
    QPainterPath basket;
    basket.addRoundedRect(
        QRectF(centre.x() - radius * 0.2, centre.y() + radius * 1.78, radius * 0.4, radius * 0.3), 3, 3);
    canvas.shape(basket, QColor(0xA98A6C));
}

} // namespace

void Pictures::clouds(Canvas &canvas)
{
    canvas.gradient(0, Canvas::height, {{0, 0xC6DCEC}, {0.4, 0xD9E8F1}, {0.75, 0xEDF1F1}, {1, 0xF6EFE6}});
    canvas.glow({1500, 760}, 900, 0xFFF6E4, 0.55);
    for (int i = 0; i < 7; ++i)
        cumulus(canvas, {canvas.between(0, Canvas::width), canvas.between(590, 680)},
                canvas.between(130, 260), 0xF8FBFD, 0xDDE9F1);
    balloon(canvas, {1752, 560}, 44);
    for (int i = 0; i < 7; ++i)
        cumulus(canvas, {i * 330.0 + canvas.around(0, 50), canvas.between(790, 880)},
                canvas.between(330, 520), 0xFEFEFD, 0xCBDCE9);
    canvas.gradient(880, Canvas::height, {{0, faint(0xDBE7F0, 0)}, {0.4, 0xDBE7F0}, {1, 0xD3E1EC}});
    for (int i = 0; i < 6; ++i)
        cumulus(canvas, {1980 - i * 400.0 + canvas.around(0, 50), canvas.between(1000, 1060)},
                canvas.between(540, 700), 0xFFFFFF, 0xC3D6E5);
    canvas.gradient(1090, Canvas::height, {{0, faint(0xF4F8FA, 0)}, {1, 0xF4F8FA}});
    for (int i = 0; i < 4; ++i)
        cumulus(canvas, {i * 640.0 + canvas.around(0, 40), canvas.between(1285, 1315)},
                canvas.between(820, 980), 0xFDFEFE, 0xBED2E2);
}
