// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backupoutlook.h"

#include "backup/model/diskrecords.h"
#include "backup/model/knownfiles.h"
#include "backup/model/picturepool.h"
#include "backup/model/sealeddisk.h"
#include "backup/model/setfolder.h"

BackupOutlook BackupOutlook::of(const QList<BackupItem> &items, const DataFolder &household,
                                const QString &folder, const std::optional<DiskRoom> &room, Form form)
{
    const KnownFiles known = KnownFiles::of(DiskRecords::readSet(household.path()), folder);
    const PicturePool pool(SetFolder::picturesPath(folder));
    BackupOutlook outlook;
    QList<PlannedItem> planned;
    planned.reserve(items.size());
    for (const BackupItem &item : items) {
        const bool isPicture = SetFolder::isPicture(item.name);
        const bool isThere =
            isPicture && form == Form::Plain && !pool.find(known.hash(item), item.size).isEmpty();
        const bool isPerhaps = isPicture && form == Form::Plain && !isThere && known.hash(item).isEmpty() &&
                               pool.hasSize(item.size);
        outlook.newPictures += isPicture && !isThere ? 1 : 0;
        outlook.perhapsPictures += isPerhaps ? 1 : 0;
        outlook.knownPictures += isThere ? 1 : 0;
        planned.append({item.name, item.size, 0, 0, isThere});
    }
    DiskRoom first = DiskRoom::of(folder).within(room);
    DiskRoom next = DiskRoom::ofEmpty(folder).within(room);
    if (form == Form::Sealed) {
        first = SealedDisk::sealedRoom(first);
        next = SealedDisk::sealedRoom(next);
    }
    outlook.plan = DiskPlan::of(planned, first, next);
    return outlook;
}
