// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QStringList>

class QPainter;

/// Fills the squares of `rows` that are '#', a letter for each, as large as fits `place` (in points), at its
/// top left corner. Rows may differ in length; what is missing stays white.
void drawPageSquares(QPainter &painter, const QRectF &place, const QStringList &rows);
