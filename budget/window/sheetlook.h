// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/look/theme.h"

/// What the grid and its totals rows have in common to look at.
namespace SheetLook {

inline constexpr int inset = 8;       ///< between a text and the edges of its cell
inline constexpr int amountInset = 6; ///< of a month in the sheet: twelve of them stand side by side
inline constexpr int signRoom = 15;   ///< in place of the inset before an amount over its plan

/// How the rows stand: dense in a low window.
enum class Rows { Roomy, Dense };
/// A row of the grid, and of the totals.
int rowHeight(Rows rows = Rows::Roomy);

/// `font`, squeezed as far as a number needs it to stand whole in `room` pixels.
QFont fitting(QFont font, const QString &number, int room);

/// The red of a negative balance: dark red, or what reads as well on a dark ground.
QColor red(const Theme &theme);
/// The fill behind it.
QColor redFill(const Theme &theme);

} // namespace SheetLook
