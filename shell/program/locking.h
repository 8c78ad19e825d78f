// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class ActivityBar;
class QWidget;
struct Program;

/// What the windows themselves have to do with being covered.
namespace Locking {

/// "Lock Now" in the status bar of a window, for as long as the password guards anything.
void offer(Program &program, ActivityBar &bar);
/// Also while `isLockable` says so, of a window that has been offered it already: it can be locked by itself.
void offerAlso(Program &program, ActivityBar &bar, std::function<bool()> isLockable);

/// Whether what `window` shows may be seen: one that is covered asks for the password first.
bool maySee(QWidget &window, Program &program);

} // namespace Locking
