// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/taskpreview.h"

#include <QWidget>

#include <qt_windows.h>

#include <dwmapi.h>

void TaskPreview::setHidden(const QWidget &window, bool isHidden)
{
    const auto handle = reinterpret_cast<HWND>(window.effectiveWinId());
    const BOOL value = isHidden ? TRUE : FALSE;
    for (const DWORD attribute : {DWORD(DWMWA_FORCE_ICONIC_REPRESENTATION), DWORD(DWMWA_DISALLOW_PEEK)})
        DwmSetWindowAttribute(handle, attribute, &value, sizeof value);
}
