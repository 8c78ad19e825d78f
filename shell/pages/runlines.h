// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/pagetype.h"

#include <vector>

class QPainter;

/// Some letters of one style on a line of a paragraph.
struct RunPiece {
    const PageType *type;
    double x; ///< from the beginning of the line, in points
    QString text;
};

using RunLine = std::vector<RunPiece>;

/// Cuts paragraphs of styled runs into lines, and draws these.
namespace RunLines {

/// The lines of `paragraph` where it may be as wide as `width` (points): one at least. They live as long as
/// `types`.
std::vector<RunLine> of(const PageItem::Paragraph &paragraph, const PageTypes &types, double width);

/// How far the item of a list is set in, in points; 0 for a paragraph that is none.
double indentOf(const PageItem::Paragraph &paragraph);

/// Draws the line whose top stands at `top`.
void draw(QPainter &painter, QPointF top, const RunLine &line);

/// The dot before the item of a list, whose first line begins at `top`.
void drawDot(QPainter &painter, QPointF top, const PageType &type);

} // namespace RunLines
