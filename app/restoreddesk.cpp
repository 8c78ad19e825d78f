// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/restoreddesk.h"

#include "backup/model/holdings.h"
#include "storage/disk.h"

#include <QFileInfo>
#include <QSettings>

#include <tuple>

void RestoredDesk::takeUp(const DataFolder &folder, QSettings &store)
{
    const QString path = folder.path() + u'/' + Holdings::deskName;
    if (folder.isReadOnly() || !QFileInfo(path).isFile())
        return;
    {
        const QSettings desk(path, QSettings::IniFormat);
        const QStringList names = desk.allKeys();
        for (const QString &name : names)
            store.setValue(name, desk.value(name));
    }
    store.sync();
    std::ignore = Disk::remove(path); // what stays is taken once more
}
