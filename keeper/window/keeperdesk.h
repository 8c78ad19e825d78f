// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class ClipboardGuard;
class Commands;
class FunctionWindow;
class Keeper;
class PreviewPane;
class StrengthWords;
class WorkViews;
struct Program;

/// What the parts of the password keeper work with.
struct KeeperDesk {
    Program &program;
    FunctionWindow &window; ///< questions and pages stand over it
    Keeper &keeper;
    ClipboardGuard &clipboard;
    Commands &commands;
    WorkViews &views;
    const StrengthWords &strength;
    std::function<void(bool)> setBusy; ///< slow work is under way: the window stays
    std::function<PreviewPane &()> preview;
};
