// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup.h"

#include <QByteArray>

#include <qt_windows.h>

void Startup::prepare()
{
    // A platform that the user has chosen stays as chosen; "-platform" goes before this by itself.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
}

void Startup::readAllLetters() {} // they are read as UTF-16 here

void Startup::letOtherComeToFront()
{
    AllowSetForegroundWindow(ASFW_ANY);
}
