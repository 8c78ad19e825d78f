// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarholdings.h"

#include "calendar/model/calendarfile.h"
#include "calendar/model/calendarfiles.h"
#include "calendar/model/holidaysets.h"
#include "shell/core/undosteps.h"
#include "shell/pictures/keptpictures.h"
#include "storage/saving.h"

#include <QFileInfo>

#include <functional>
#include <tuple>
#include <vector>

namespace {

void forEachPhoto(const DataFolder &folder, const std::function<void(const MonthPhoto &)> &take)
{
    for (const int number : CalendarFiles::numbers(folder)) {
        const QByteArray bytes = CalendarFiles::read(folder, number).value_or(QByteArray());
        if (!bytes.contains("\nphoto\t"))
            continue;
        const WallCalendar calendar = CalendarFile::read(bytes);
        for (const MonthPhoto &photo : calendar.photos)
            take(photo);
    }
}

/// Writes `wanted` into the file where it holds `there`.
ChangeResult exchange(const DataFolder &folder, int number, const QByteArray &there, const QByteArray &wanted)
{
    if (CalendarFiles::read(folder, number) != there)
        return ChangeResult::Outdated;
    return Saving::replaceFile(folder, CalendarFiles::name(number), wanted) ? ChangeResult::Done
                                                                            : ChangeResult::Refused;
}

} // namespace

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
    forEachPhoto(folder, [&](const MonthPhoto &photo) {
        const QString path = KeptPictures::locate(folder, photo.path);
        if (!path.isEmpty() && !paths.contains(path))
            paths.append(path);
    });
    return paths;
}

QStringList CalendarHoldings::missingPictures(const DataFolder &folder)
{
    QStringList stored;
    forEachPhoto(folder, [&](const MonthPhoto &photo) {
        if (!stored.contains(photo.path) && KeptPictures::locate(folder, photo.path).isEmpty())
            stored.append(photo.path);
    });
    return stored;
}

std::optional<UndoStep> CalendarHoldings::relinkPictures(const DataFolder &folder,
                                                         const QHash<QString, QString> &files)
{
    std::vector<UndoStep> steps;
    for (const int number : CalendarFiles::numbers(folder)) {
        const QByteArray before = CalendarFiles::read(folder, number).value_or(QByteArray());
        if (CalendarFile::formOf(before) != TabLine::Known)
            continue;
        WallCalendar calendar = CalendarFile::read(before);
        bool isNamed = false;
        for (MonthPhoto &photo : calendar.photos) {
            if (const QString now = files.value(photo.path); !now.isEmpty()) {
                photo.path = KeptPictures::stored(folder, now);
                isNamed = true;
            }
        }
        if (!isNamed)
            continue;
        const QByteArray after = CalendarFile::write(calendar, before);
        if (exchange(folder, number, before, after) != ChangeResult::Done) {
            if (const UndoStep all = UndoSteps::joined({}, steps); all.undo)
                std::ignore = all.undo();
            return {};
        }
        steps.push_back({{},
                         [=, &folder] { return exchange(folder, number, after, before); },
                         [=, &folder] { return exchange(folder, number, before, after); }});
    }
    return UndoSteps::joined({}, steps);
}
