// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

class QWidget;

/// Where a window stands on the screen. All sizes are in logical pixels.
namespace WindowPlace {

/// False where the program draws into memory alone, for tests and pictures: no frames, and a screen of any
/// size.
bool hasScreen();

/// Gives a window that is not shown yet its place: the one in `stored` (what `saveGeometry` gave), else
/// `openingSize` in the middle of the screen. Nothing of it lies off the screen.
void open(QWidget &window, QSize openingSize, const QByteArray &stored);

/// Brings the window, with its frame, onto the screen where it stands.
void fitScreen(QWidget &window);

/// Fits it once more when the window manager has put its frame around it, which nothing tells.
void fitScreenWhenFramed(QWidget &window);

} // namespace WindowPlace
