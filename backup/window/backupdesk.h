// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class Commands;
class DiskWork;
class FunctionWindow;
class PlacesPane;
class WorkViews;
struct Program;

/// What the parts of the window work with.
struct BackupDesk {
    Program &program;
    FunctionWindow &window; ///< questions and pages stand over it
    Commands &commands;
    WorkViews &views;
    PlacesPane &places;
    DiskWork &work;
    std::function<void(bool isBusy)> setBusy;
};
