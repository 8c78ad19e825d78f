// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "canvas.h"

/// What grows and stands in the pictures.
namespace Plants {

/// A fir of `height` pixels on `foot`; snow lies on its boughs when `snow` is a valid colour.
void fir(Canvas &canvas, QPointF foot, qreal height, const QColor &colour, const QColor &snow = QColor());
/// A broad-leaved tree with a crown of soft lumps, lit from the right.
void tree(Canvas &canvas, QPointF foot, qreal height, const QColor &colour, const QColor &light);
/// One bent blade from `foot`; `lean` is how far its tip stands aside.
void blade(Canvas &canvas, QPointF foot, qreal height, qreal lean, qreal width, const QColor &colour);

enum class Leaf { Beech, Maple, Oak };
/// A leaf of `length` pixels around the origin, its tip upwards.
QPainterPath leaf(Leaf kind, qreal length);

} // namespace Plants
