// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/listtrash.h"

#include "storage/changeset.h"
#include "todo/model/listactions.h"
#include "todo/model/todofiles.h"
#include "todo/model/todohead.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kind = u"ToDoLists"_s;

/// The list of a deletion with its items, as a sheet of its own.
ToDoSheet sheetOf(const Trash::Item &item)
{
    if (item.pieces.empty())
        return {};
    return ToDoSheet::fromFile(ToDoHead::firstLine.toByteArray() + "\r\n" + item.pieces.front().bytes);
}

} // namespace

Trash::State ListTrash::put(const DataFolder &folder, const ToDoSheet &sheet, int list, const QDateTime &now)
{
    const ToDoList *deleted = sheet.list(list);
    if (!deleted)
        return Trash::State::Whole;
    QByteArray lines = ToDoLine::make(*deleted) + "\r\n";
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (sheet.listOf(row) == list)
            lines += ToDoLine::make(sheet.item(row)) + "\r\n";
    }
    Trash trash(folder);
    trash.put({kind, now, deleted->name, {{ToDoFiles::names().front(), list, lines}}});
    ChangeSet change(folder);
    trash.addTo(change);
    return change.commit() ? trash.state() : Trash::State::OutOfReach;
}

std::vector<Trash::Item> ListTrash::items(const DataFolder &folder, const ToDoSheet &sheet,
                                          const QDateTime &now)
{
    std::vector<Trash::Item> items = Trash(folder).items(kind, now);
    std::erase_if(items, [&sheet](const Trash::Item &item) {
        const std::vector<ToDoList> lists = sheetOf(item).lists();
        if (lists.empty())
            return true;
        const ToDoList *there = sheet.list(item.pieces.front().number);
        return there && there->name == lists.front().name;
    });
    return items;
}

ToDoActions::Result ListTrash::bringBack(const ToDoSheet &sheet, const Trash::Item &item)
{
    const ToDoSheet deleted = sheetOf(item);
    if (deleted.lists().empty())
        return {sheet, {}, {}};
    ToDoList list = deleted.lists().front();
    const int former = list.id;
    list.name = ListActions::freeName(sheet, list.name);
    ToDoSheet wanted = sheet;
    const int id = wanted.addList(list);
    std::vector<ToDoItem> items;
    for (int row = 0; row < deleted.rowCount(); ++row) {
        ToDoItem thing = deleted.item(row);
        if (thing.list != former)
            continue;
        thing.list = id;
        items.push_back(thing);
    }
    wanted.addAll(items);
    return {wanted, u"Brought back: %1"_s.arg(list.name), {id}};
}
