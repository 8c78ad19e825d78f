// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

/// Fills a level or upright line in whole device dots, so that a thin one is sharp on the screen and never
/// lost.
void fillSharpLine(QPainter &painter, QRectF line, const QColor &color);
