// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class ActivityBar;
class QWidget;
struct Program;

/// What the windows themselves have to do with being covered.
namespace Locking {

/// "Lock Now" in the status bar of a window, for as long as the password guards anything.
void offer(Program &program, ActivityBar &bar);

/// Whether what `window` shows may be seen: one that is covered asks for the password first.
bool maySee(QWidget &window, Program &program);

} // namespace Locking
