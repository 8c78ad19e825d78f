// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QSize>

#include <functional>

class QUrl;
class QWidget;

/// What the main window asks of the desktop around it; a test hands in its own.
struct Surroundings {
    /// Opens an address in the web browser. A failure is ignored.
    std::function<void(const QUrl &)> openAddress;
    /// The system's way of writing dates, as it is now.
    std::function<QLocale()> locale;
    /// The pixels of the screen that the window is on.
    std::function<QSize(const QWidget &)> screenPixels;

    static Surroundings ofDesktop();
};
