// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QWidget;

/// Takes the content of a window out of sight and out of reach until somebody gives the password: pixels,
/// title, keys and what screen readers get. Nothing in the window is changed or forgotten.
namespace Covering {

/// Covers `window`, of any kind; `unlock` is what its one button asks for. Nothing, where it is covered.
void cover(QWidget &window, std::function<void()> unlock);

/// The window is as it was, with the focus where it was.
void uncover(QWidget &window);

/// Whether the window that `widget` is in is covered.
bool isCovered(const QWidget &widget);

} // namespace Covering
