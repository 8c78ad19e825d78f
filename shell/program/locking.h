// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class ActivityBar;
class QWidget;
struct Program;

/// What the windows themselves have to do with being covered.
namespace Locking {

/// "Lock Now" in the status bar of a window, for as long as the password guards anything or something that is
/// open can be locked by itself.
void offer(Program &program, ActivityBar &bar);
/// The window of `bar` can be locked by itself while `isLockable` says so: each window offers it then.
void offerAlso(Program &program, ActivityBar &bar, std::function<bool()> isLockable);

/// Whether what `window` shows may be seen: one that is covered asks for the password first.
bool maySee(QWidget &window, Program &program);

} // namespace Locking
