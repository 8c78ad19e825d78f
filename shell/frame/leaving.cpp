// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/leaving.h"

#include "shell/frame/functionwindow.h"

#include <algorithm>

bool leaveAllWindows(const Program &program, QWidget *except)
{
    QList<QWidget *> windows = program.functions.openWindows();
    windows.removeAll(except);
    const auto each = [&windows](bool (FunctionWindow::*step)()) {
        return std::all_of(windows.begin(), windows.end(), [step](QWidget *window) {
            auto *functionWindow = qobject_cast<FunctionWindow *>(window);
            const bool agrees = !functionWindow || (functionWindow->*step)();
            if (!agrees)
                bringToFront(*window);
            return agrees;
        });
    };
    if (each(&FunctionWindow::mayLeave) && each(&FunctionWindow::saveToLeave) &&
        std::all_of(windows.begin(), windows.end(), [](QWidget *window) { return window->close(); }))
        return true;
    for (QWidget *window : windows)
        if (auto *functionWindow = qobject_cast<FunctionWindow *>(window))
            functionWindow->stay();
    return false;
}
