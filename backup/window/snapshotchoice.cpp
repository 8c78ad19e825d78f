// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/snapshotchoice.h"

#include "backup/model/snapshots.h"
#include "storage/datafolder.h"

#include <QSettings>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto folderKey = "Windows/Backup1/snapshotFolder"_L1;
constexpr auto limitKey = "Windows/Backup1/snapshotLimit"_L1;

QString ownFolder(const DataFolder &household)
{
    return household.path() + u'/' + Snapshots::folderName;
}

} // namespace

SnapshotChoice SnapshotChoice::read(const QSettings &store, const DataFolder &household)
{
    const QString folder = store.value(folderKey).toString();
    return {folder.isEmpty() ? ownFolder(household) : folder,
            std::max<qint64>(store.value(limitKey).toLongLong(), 0)};
}

void SnapshotChoice::write(QSettings &store, const DataFolder &household) const
{
    store.setValue(folderKey, folder == ownFolder(household) ? QString() : folder);
    store.setValue(limitKey, limit);
}
