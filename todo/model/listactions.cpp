// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/listactions.h"

#include "storage/ansitext.h"
#include "storage/tabline.h"
#include "todo/model/lines.h"
#include "todo/model/templates.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using ListActions::Result;

QString plainName(const QString &name)
{
    return name.simplified();
}

Result madeList(ToDoSheet sheet, const ToDoList &list, std::vector<ToDoItem> items)
{
    const int id = sheet.addList(list);
    for (ToDoItem &item : items)
        item.list = id;
    if (!items.empty())
        sheet.addAll(items);
    return {.sheet = sheet, .title = u"New list: "_s + list.name, .ids = {id}};
}

/// An item as a template has it, with the date that its days before or after `day` give.
ToDoItem dated(ToDoItem item, QDate day, QDate today)
{
    if (item.offset)
        item.due = day.addDays(*item.offset);
    item.offset.reset();
    item.actual = {};
    item.created = item.level == ItemLevel::Heading ? QDate() : today;
    return item;
}

std::vector<ToDoItem> itemsOf(const ToDoSheet &sheet, int list)
{
    std::vector<ToDoItem> items;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (sheet.listOf(row) == list)
            items.push_back(sheet.item(row));
    }
    return items;
}

Result changedList(const ToDoSheet &sheet, const ToDoList &list, const QString &title)
{
    Result result{.sheet = sheet, .title = {}, .ids = {list.id}};
    const ToDoList *former = sheet.list(list.id);
    if (former == nullptr || *former == list)
        return result;
    result.sheet.setList(list);
    result.title = title;
    return result;
}

} // namespace

QString ListActions::whyNotNamed(const ToDoSheet &sheet, const QString &name, int id)
{
    const QString plain = plainName(name);
    if (plain.isEmpty())
        return ToDoLines::listNeedsName();
    if (plain.size() > ToDoList::longestName)
        return ToDoLines::listNameTooLong(ToDoList::longestName);
    if (const QString foreign = AnsiText::foreignCharacters(plain); !foreign.isEmpty())
        return ToDoLines::notHoldable(foreign);
    const auto isTaken = [&plain, id](const ToDoList &list) {
        return list.id != id && list.name.compare(plain, Qt::CaseInsensitive) == 0;
    };
    return std::ranges::any_of(sheet.lists(), isTaken) ? ToDoLines::listIsThere(plain) : QString();
}

QString ListActions::freeName(const ToDoSheet &sheet, const QString &name, const QString &ending)
{
    QString free;
    for (std::size_t number = 1; number <= sheet.lists().size() + 1; ++number) {
        const QString end = number == 1 ? ending : ending + u' ' + QString::number(number);
        free = name.left(ToDoList::longestName - end.size()).trimmed() + end;
        if (whyNotNamed(sheet, free).isEmpty())
            break;
    }
    return free;
}

Result ListActions::add(const ToDoSheet &sheet, ListKind kind, const QString &name)
{
    return madeList(sheet, {0, kind, plainName(name)}, {});
}

Result ListActions::rename(const ToDoSheet &sheet, int id, const QString &name)
{
    const ToDoList *former = sheet.list(id);
    if (former == nullptr)
        return {.sheet = sheet, .title = {}, .ids = {}};
    return changedList(sheet, {id, former->kind, plainName(name)}, u"Renamed: "_s + plainName(name));
}

Result ListActions::setKind(const ToDoSheet &sheet, int id, ListKind kind)
{
    const ToDoList *former = sheet.list(id);
    if (former == nullptr)
        return {.sheet = sheet, .title = {}, .ids = {}};
    return changedList(sheet, {id, kind, former->name}, u"Changed: "_s + former->name);
}

Result ListActions::move(const ToDoSheet &sheet, int id, int place)
{
    Result result{.sheet = sheet, .title = {}, .ids = {id}};
    result.sheet.moveList(id, place);
    if (const ToDoList *list = sheet.list(id); list != nullptr && !(result.sheet == sheet))
        result.title = u"Moved: "_s + list->name;
    return result;
}

Result ListActions::remove(const ToDoSheet &sheet, int id)
{
    Result result{.sheet = sheet, .title = {}, .ids = {}};
    if (const ToDoList *list = sheet.list(id)) {
        result.title = u"Deleted: "_s + list->name;
        result.sheet.removeList(id);
    }
    return result;
}

QStringList ListActions::openTexts(const ToDoSheet &sheet, int id)
{
    QStringList texts;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (sheet.listOf(row) == id && sheet.isOpen(row))
            texts += TabLine::text(sheet.textBytes(row));
    }
    return texts;
}

Result ListActions::fromTemplate(const ToDoSheet &sheet, int templateId, const QString &name, QDate day,
                                 QDate today)
{
    std::vector<ToDoItem> items;
    for (const ToDoItem &item : itemsOf(sheet, templateId))
        items.push_back(dated(item, day, today));
    return madeList(sheet, {0, ListKind::Plain, plainName(name)}, items);
}

Result ListActions::fromBuiltIn(const ToDoSheet &sheet, int builtIn, const QString &name, QDate day,
                                QDate today)
{
    const Templates::Template &source = Templates::all().at(std::size_t(builtIn));
    std::vector<ToDoItem> items;
    for (const ToDoItem &item : source.items)
        items.push_back(dated(item, day, today));
    return madeList(sheet, {0, source.kind, plainName(name)}, items);
}

Result ListActions::saveAsTemplate(const ToDoSheet &sheet, int id, const QString &name, QDate day)
{
    std::vector<ToDoItem> items = itemsOf(sheet, id);
    for (ToDoItem &item : items) {
        if (item.due.isValid())
            item.offset = int(day.daysTo(item.due));
        item.due = {};
        item.actual = {};
        item.created = {};
    }
    return madeList(sheet, {0, ListKind::Template, plainName(name)}, items);
}
