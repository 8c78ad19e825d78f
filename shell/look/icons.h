// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QLatin1StringView>
#include <QPixmap>

class QColor;

/// The program's own drawings for buttons, cards, marks and message boxes, by the name of their source in
/// resources/icons. An unknown name gives a null icon or pixmap. Files are read when an icon is first
/// painted.
namespace Icons {

enum class Scheme { Light, Dark };

/// Sharp at 16, 20, 24, 32, 40, 48 and 64 pixels (functions up to 144, message signs at 44, 66 and 88). A
/// disabled icon is drawn in the scheme's disabled text colour, one on a selected row in its colour on the
/// accent.
QIcon icon(QLatin1StringView name, Scheme scheme);

/// The same drawing wholly in `ink`, for buttons that have a colour of their own; disabled ones follow
/// `scheme`.
QIcon tinted(QLatin1StringView name, Scheme scheme, const QColor &ink);

/// A square of `size` logical pixels for a screen of `devicePixelRatio`.
QPixmap pixmap(QLatin1StringView name, Scheme scheme, int size, qreal devicePixelRatio);

/// The sign of the program itself, for windows and the task bar.
QIcon applicationIcon();

} // namespace Icons
