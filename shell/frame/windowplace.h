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

/// What the screen has room for within the frame of a window that is not shown yet.
QSize room(const QWidget &window);

/// Gives a window that is not shown yet its place: the one in `stored` (what `saveGeometry` gave), else
/// `openingSize` in the middle of the screen. Nothing of it lies off the screen, then and when it is shown.
void open(QWidget &window, QSize openingSize, const QByteArray &stored);

/// Brings the window, with its frame, onto the screen where it stands; it may become smaller than it should.
void fitScreen(QWidget &window);

/// Fits the window whenever it is shown, until its window manager has put its frame around it, and when the
/// screen changes.
void keepOnScreen(QWidget &window);

} // namespace WindowPlace
