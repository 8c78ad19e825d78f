// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarholdings.h"

#include "calendar/model/calendarfile.h"
#include "calendar/model/calendarfiles.h"
#include "calendar/model/holidaysets.h"
#include "shell/pictures/keptpictures.h"

#include <QFileInfo>

QStringList CalendarHoldings::files(const DataFolder &folder)
{
    QStringList files = CalendarFiles::names(folder);
    if (const QString path = folder.existingFile({}, HolidaySets::fileName); !path.isEmpty())
        files.append(QFileInfo(path).fileName());
    return files;
}

QStringList CalendarHoldings::pictures(const DataFolder &folder)
{
    QStringList paths;
    for (const int number : CalendarFiles::numbers(folder)) {
        const QByteArray bytes = CalendarFiles::read(folder, number).value_or(QByteArray());
        if (!bytes.contains("\nphoto\t"))
            continue;
        const WallCalendar calendar = CalendarFile::read(bytes);
        for (const MonthPhoto &photo : calendar.photos) {
            const QString path = KeptPictures::locate(folder, photo.path);
            if (!path.isEmpty() && !paths.contains(path))
                paths.append(path);
        }
    }
    return paths;
}
