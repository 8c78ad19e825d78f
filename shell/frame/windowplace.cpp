// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/windowplace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize smallestSize(800, 600);
constexpr int framingMilliseconds = 120;

} // namespace

bool WindowPlace::hasScreen()
{
    return QGuiApplication::platformName() != "offscreen"_L1;
}

void WindowPlace::open(QWidget &window, QSize openingSize, const QByteArray &stored)
{
    const QSize available = window.screen()->availableSize();
    window.setMinimumSize(smallestSize.boundedTo(available));
    window.resize(openingSize.boundedTo(available));
    if (!window.restoreGeometry(stored))
        window.move(window.screen()->availableGeometry().center() - window.rect().center());
    fitScreen(window);
}

void WindowPlace::fitScreen(QWidget &window)
{
    if (window.isMaximized() || window.isFullScreen())
        return;
    const QScreen *here = QGuiApplication::screenAt(window.frameGeometry().center());
    const QRect room = (here ? here : window.screen())->availableGeometry();
    const QSize frame = window.frameGeometry().size() - window.size();
    window.resize(window.size().boundedTo(room.size() - frame));
    const QRect outside = window.frameGeometry();
    window.move(
        std::clamp(outside.x(), room.left(), std::max(room.left(), room.right() + 1 - outside.width())),
        std::clamp(outside.y(), room.top(), std::max(room.top(), room.bottom() + 1 - outside.height())));
}

void WindowPlace::fitScreenWhenFramed(QWidget &window)
{
    if (hasScreen())
        QTimer::singleShot(framingMilliseconds, &window, [&window] { fitScreen(window); });
}
