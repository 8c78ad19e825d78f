// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/storedsettings.h"

#include <QSettings>

bool StoredSettings::areOnDisk(const QSettings &store)
{
    QSettings same(store.fileName(), store.format());
    same.sync();
    return same.status() == QSettings::NoError;
}
