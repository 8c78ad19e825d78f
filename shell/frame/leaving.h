// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;
struct Program;

/// Closes all windows of functions but `except`. Nothing is saved, dropped or closed before every window has
/// agreed. False: one of them stays, and comes to the front.
bool leaveAllWindows(const Program &program, QWidget *except = nullptr);
