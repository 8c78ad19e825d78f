// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/surroundings.h"

#include <QDesktopServices>
#include <QScreen>
#include <QWidget>

Surroundings Surroundings::ofDesktop()
{
    return {[](const QUrl &address) { QDesktopServices::openUrl(address); }, [] { return QLocale::system(); },
            [](const QWidget &window) {
                const QScreen &screen = *window.screen();
                return (QSizeF(screen.size()) * screen.devicePixelRatio()).toSize();
            }};
}
