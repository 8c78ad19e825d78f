// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/busycursor.h"

#include <QCursor>
#include <QGuiApplication>

void Hourglass::on()
{
    if (!QGuiApplication::overrideCursor())
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void Hourglass::off()
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}
