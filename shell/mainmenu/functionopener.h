// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/mainmenu/topbuttons.h"

#include <functional>

class ActivityBar;
class QWidget;
struct Program;

/// Opens functions from the main menu, each behind its guard, and does what the buttons of the top toolbar
/// do. Meanwhile the status bar says "Loading".
class FunctionOpener
{
public:
    FunctionOpener(Program &program, ActivityBar &activity, QWidget *window);

    /// As the function's menu entry and its card do.
    void open(Function function) const;
    /// The same, and shows `place` there.
    void open(Function function, const Place &place) const;

    /// What a click on the button does.
    void press(const TopButtons::TopButton &button) const;

private:
    void open(Function function, int area, const Place &place = {}) const;
    void openWhenAllowed(Function function, const std::function<bool()> &mayOpen,
                         const Place &place = {}) const;
    void openForeign(int area) const;
    void tellWrongAnswers(ActivityBar *bar) const;
    void showListFile(const TopButtons::ShowsListFile &button) const;

    Program &m_program;
    ActivityBar &m_activity;
    QWidget *m_window;
};
