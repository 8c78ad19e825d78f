// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

class QPainter;

/// Draws the mark of a wrong word: a wave from `left` to `right`, whose crests touch `top`.
void drawWavyLine(QPainter &painter, qreal left, qreal right, qreal top, const QColor &color);
