// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagegrid.h"
#include "shell/pages/pagefont.h"
#include "shell/pages/pagetype.h"

#include <QColor>

#include <map>
#include <tuple>

/// The colours of grids. They print as greys that differ, and every text on them is dark enough.
namespace GridColors {

inline constexpr QColor ink(0x1E, 0x1C, 0x1A);
inline constexpr QColor quiet(0x5E, 0x58, 0x4E);
inline constexpr QColor line(0x9A, 0x94, 0x8A);
inline constexpr QColor thinLine(0xC9, 0xC3, 0xB8);
inline constexpr QColor tint(0xF1, 0xEE, 0xE8); ///< of weekends
inline constexpr QColor band(0x0B, 0x67, 0x60);
inline constexpr QColor onBand(0xFF, 0xFF, 0xFF);

/// Of a bar, from 1 on; a number that is none counts as the first.
QColor tone(int number);
/// Its darker edge.
QColor toneEdge(int number);

} // namespace GridColors

/// The fonts of a grid, made when they are asked for.
class GridTypes
{
public:
    enum Weight { Light, Normal, Strong };

    GridTypes(const PageGrid &grid, const PageFont &font);

    const PageType &of(double points, Weight weight = Normal, const QColor &color = GridColors::ink) const;

    /// Of lines in cells.
    const PageType &line(double points, Weight weight = Normal) const { return of(points, weight, m_color); }

    /// The size to begin with where columns are so wide: what the person chose, or what suits them.
    double firstPoints(double columnWidth) const;

    /// The distance of two lines of a cell.
    static constexpr double pitch(double points) { return points * 1.22; }
    /// What puts a text that `type` draws into the middle of a line of a cell.
    static double lift(const PageType &type, double points)
    {
        return (pitch(points) - type.lineHeight()) / 2;
    }

    static constexpr double smallestPoints = 8;
    static constexpr double step = 0.5;

private:
    static constexpr double largestPoints = 24;

    QFont m_font;
    QColor m_color;
    double m_chosen;
    double m_most; ///< where none is chosen
    mutable std::map<std::tuple<int, int, QRgb>, PageType> m_types;
};
