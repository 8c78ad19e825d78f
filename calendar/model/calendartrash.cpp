// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendartrash.h"

#include "calendar/model/calendarfile.h"
#include "calendar/model/calendarfiles.h"
#include "storage/changeset.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kind = u"Calendars"_s;

} // namespace

bool CalendarTrash::throwAway(const DataFolder &folder, int number, const QDateTime &now)
{
    const QString name = CalendarFiles::name(number);
    if (!folder.exists(name))
        return true;
    const std::optional<QByteArray> bytes = CalendarFiles::read(folder, number);
    if (!bytes)
        return false;
    const QString title = CalendarFile::read(*bytes).title;
    Trash trash(folder);
    trash.put({kind, now, title.isEmpty() ? name : title, {{name, number, *bytes}}});
    ChangeSet change(folder);
    trash.addTo(change);
    change.remove(name);
    return change.commit();
}

std::vector<Trash::Item> CalendarTrash::items(const DataFolder &folder, const QDateTime &now)
{
    std::vector<Trash::Item> items = Trash(folder).items(kind, now);
    std::erase_if(items, [](const Trash::Item &item) { return item.pieces.empty(); });
    return items;
}

int CalendarTrash::bringBack(const DataFolder &folder, const Trash::Item &item)
{
    if (item.pieces.empty())
        return 0;
    const int former = item.pieces.front().number;
    const bool isFree =
        former >= 1 && former <= CalendarFiles::most && !folder.exists(CalendarFiles::name(former));
    const int number = isFree ? former : CalendarFiles::freeNumber(folder);
    if (number == 0)
        return 0;
    Trash trash(folder);
    trash.take(item);
    ChangeSet change(folder);
    change.replace(CalendarFiles::name(number), item.pieces.front().bytes);
    trash.addTo(change);
    return change.commit() ? number : 0;
}
