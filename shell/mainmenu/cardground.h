// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>

class QColor;
class QWidget;

/// What a card on the background picture is drawn on.
namespace CardGround {

/// Free pixels around the card proper, for its focus ring and its shadow.
inline constexpr int margin = 6;
inline constexpr int corner = 10;
/// Of the fill, over the picture.
inline constexpr float opacity = 0.96F;

/// Shadow, fill and rim of a card that takes the whole of `widget` but for the margin. Cards of one size
/// share one drawing for each state.
QPixmap of(const QWidget &widget, const QColor &fill);

} // namespace CardGround
