// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/settingskeys.h"
#include "shell/frame/functionwindow.h"

/// What the sample windows on the frame are called.
inline WindowTraits sampleTraits()
{
    return {QStringLiteral("SAMPLE"),
            QStringLiteral("Sample Screen"),
            QStringLiteral("Sample"),
            {SettingsKeys::helpColor, SettingsKeys::helpProgramColor, {}},
            1004};
}
