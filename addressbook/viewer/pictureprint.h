// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturecopies.h"

class ActivityBar;
class FunctionWindow;
struct Program;

/// Prints the family's pictures from a window: copies are made while the window goes on, then its preview
/// shows the sheets. The status bar says how far it is, and stops it.
class PicturePrint final : public QObject
{
    Q_OBJECT
public:
    PicturePrint(Program &program, ActivityBar &activity, FunctionWindow *window);

    /// Without a picture it says so.
    void start(const std::vector<NamedPicture> &pictures);
    bool isBusy() const { return m_copies.isBusy(); }

private:
    void show();
    void stop();

    ActivityBar &m_activity;
    FunctionWindow *m_window;
    PictureCopies m_copies;
};
