// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagegrid.h"

#include <QRectF>
#include <QStringList>

#include <vector>

/// An entry in its place, in points.
struct LaidLine {
    const GridLine *line = nullptr;
    QRectF rect{};
    double lead = 0;   ///< from the left edge to its text
    double indent = 0; ///< of its further lines
    QStringList words{};
    bool hasLead = true;       ///< its day before it
    bool isBesideLast = false; ///< on the same level as the entry before it
};

/// A day in its place.
struct LaidCell {
    const GridBlock *block = nullptr;
    const GridCell *cell = nullptr;
    int row = 0;
    int column = 0;
    QRectF rect{};
    QRectF number{};
    QRectF text{}; ///< for its lines, down to its foot
    std::vector<LaidLine> lines{};
    int left = 0; ///< how many of its lines stand in the list
};

/// A bar in its place.
struct LaidSpan {
    const GridSpan *span = nullptr;
    QRectF rect{};
    QStringList words{};
};

/// A line that found no room, of a cell or, where there is none, of the list below a grid.
struct LeftLine {
    const GridCell *cell = nullptr;
    GridLine line{};
};

/// What stands in the frame of a grid.
struct LaidBlock {
    std::vector<QRectF> rows{};
    std::vector<LaidCell> cells{};
    std::vector<LaidSpan> spans{};
    std::vector<LaidLine> notes{};
    std::vector<LeftLine> left{};
    double least = 0; ///< how high the frame is at least, with its heads
};
