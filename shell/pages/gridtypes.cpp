// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridtypes.h"

#include <QFontInfo>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// So many times its size a column is wide at least, so that few words are broken.
constexpr double columnInPoints = 9.5;

struct Tone {
    QColor fill;
    QColor edge;
};

constexpr std::array<Tone, PageGrid::tones> tones{{
    {QColor(0xCB, 0xE3, 0xDE), QColor(0x0B, 0x67, 0x60)},
    {QColor(0xF2, 0xDD, 0xC4), QColor(0x97, 0x50, 0x1F)},
    {QColor(0xC6, 0xD6, 0xEA), QColor(0x2B, 0x62, 0x96)},
    {QColor(0xE6, 0xD6, 0xEA), QColor(0x7A, 0x45, 0x88)},
    {QColor(0xD6, 0xE6, 0xC2), QColor(0x4A, 0x73, 0x26)},
    {QColor(0xD2, 0xD4, 0xD8), QColor(0x50, 0x5A, 0x66)},
}};

const Tone &toneOf(int number)
{
    const bool isOne = number >= 1 && number <= PageGrid::tones;
    return tones[isOne ? std::size_t(number - 1) : 0];
}

QFont::Weight weightOf(GridTypes::Weight weight, const QFont &font)
{
    switch (weight) {
    case GridTypes::Light:
        return QFont::Light;
    case GridTypes::Strong:
        return std::max(QFont::DemiBold, font.weight());
    case GridTypes::Normal:
        break;
    }
    return font.weight();
}

double pointsOf(const QFont &font)
{
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    return points > 0 ? points : PageMetrics::bodyPoints;
}

} // namespace

QColor GridColors::tone(int number)
{
    return toneOf(number).fill;
}

QColor GridColors::toneEdge(int number)
{
    return toneOf(number).edge;
}

GridTypes::GridTypes(const PageGrid &grid, const PageFont &font)
    : m_font(font.font)
    , m_color(font.color.isValid() && font.color != QColor(Qt::black) ? font.color : GridColors::ink)
    , m_chosen(grid.points > 0 ? std::clamp(grid.points, smallestPoints, largestPoints) : 0)
    , m_most(std::clamp(pointsOf(font.font), smallestPoints, largestPoints))
{
    if (!grid.family.isEmpty())
        m_font.setFamily(grid.family);
}

const PageType &GridTypes::of(double points, Weight weight, const QColor &color) const
{
    const std::tuple key(int(std::lround(points * 10)), int(weight), color.rgb());
    auto found = m_types.find(key);
    if (found == m_types.end()) {
        QFont font = m_font;
        font.setWeight(weightOf(weight, font));
        found = m_types.emplace(key, PageType(font, points, color)).first;
    }
    return found->second;
}

double GridTypes::firstPoints(double columnWidth) const
{
    if (m_chosen > 0)
        return m_chosen;
    const double suiting = std::floor(columnWidth / columnInPoints / step) * step;
    return std::clamp(suiting, smallestPoints, m_most);
}
