// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todoline.h"

#include "storage/tabline.h"

#include <algorithm>
#include <array>

namespace {

using TabLine::Columns;
using ToDoLine::Kind;

enum ListColumn { ListWord, ListId, ListKindWord, ListName, ListColumnCount };
enum ItemColumn {
    ItemWord,
    ItemId,
    ItemList,
    Level,
    Due,
    Actual,
    Who,
    RepeatRule,
    Created,
    Text,
    Note,
    ItemColumnCount
};

constexpr QByteArrayView listWord = "list";
constexpr QByteArrayView itemWord = "item";
constexpr QByteArrayView activeWord = "active";
constexpr QByteArrayView nextWord = "next";

/// The days of "+3" or "-7".
std::optional<int> offset(QByteArrayView column)
{
    if (column.isEmpty() || (column[0] != '+' && column[0] != '-'))
        return {};
    const int days = TabLine::number(column.sliced(1));
    if (days < 0)
        return {};
    return column[0] == '-' ? -days : days;
}

std::optional<ItemLevel> level(QByteArrayView column)
{
    if (column == QByteArrayView("0"))
        return ItemLevel::Item;
    if (column == QByteArrayView("1"))
        return ItemLevel::Step;
    if (column == QByteArrayView("h"))
        return ItemLevel::Heading;
    return {};
}

QByteArray levelColumn(ItemLevel level)
{
    return level == ItemLevel::Item ? "0" : level == ItemLevel::Step ? "1" : "h";
}

ListKind listKind(QByteArrayView column)
{
    if (column == QByteArrayView("shopping"))
        return ListKind::Shopping;
    return column == QByteArrayView("template") ? ListKind::Template : ListKind::Plain;
}

QByteArray kindColumn(ListKind kind)
{
    return kind == ListKind::Shopping ? "shopping" : kind == ListKind::Template ? "template" : "plain";
}

std::array<QByteArray, ListColumnCount> columnsOf(const ToDoList &list)
{
    return {listWord.toByteArray(), QByteArray::number(list.id), kindColumn(list.kind),
            TabLine::column(list.name)};
}

std::array<QByteArray, ItemColumnCount> columnsOf(const ToDoItem &item)
{
    QByteArray due = TabLine::column(item.due);
    if (item.offset)
        due = (*item.offset < 0 ? "-" : "+") + QByteArray::number(qAbs(*item.offset));
    return {itemWord.toByteArray(),
            QByteArray::number(item.id),
            QByteArray::number(item.list),
            levelColumn(item.level),
            due,
            TabLine::column(item.actual),
            TabLine::column(item.who),
            TabLine::column(item.repeat),
            TabLine::column(item.created),
            TabLine::column(item.text),
            TabLine::column(item.note)};
}

/// The columns that are wanted, each with its former bytes where those say the same, and those beyond.
template <std::size_t count>
QByteArray joined(const std::array<QByteArray, count> &wanted, const std::array<QByteArray, count> &held,
                  QByteArrayView former)
{
    QByteArray line;
    Columns columns(former);
    for (std::size_t i = 0; i < count; ++i) {
        const bool isThere = !former.isEmpty() && !columns.isAtEnd();
        const QByteArrayView kept = columns.take();
        line.append(i == 0 ? "" : "\t").append(isThere && wanted[i] == held[i] ? kept : wanted[i]);
    }
    while (!former.isEmpty() && !columns.isAtEnd())
        line.append('\t').append(columns.take());
    return line;
}

void outlineItem(ToDoLine::Outline &outline, Columns &columns)
{
    outline.id = TabLine::number(columns.take());
    outline.list = TabLine::number(columns.take());
    const std::optional<ItemLevel> itemLevel = level(columns.take());
    outline.due = TabLine::julianDay(columns.take());
    outline.actual = TabLine::julianDay(columns.take());
    for (int skipped = Who; skipped < Text; ++skipped)
        columns.take();
    if (outline.id < 1 || outline.list < 0 || !itemLevel || columns.isAtEnd())
        return;
    outline.level = *itemLevel;
    outline.textAt = quint16(columns.at());
    columns.take();
    outline.noteAt = quint16(columns.at());
    outline.kind = Kind::Item;
}

} // namespace

ToDoLine::Outline ToDoLine::outline(QByteArrayView line)
{
    Outline outline;
    if (line.size() > longest)
        return outline;
    Columns columns(line);
    const QByteArrayView word = columns.take();
    if (word == itemWord) {
        outlineItem(outline, columns);
    } else if (word == listWord) {
        outline.id = TabLine::number(columns.take());
        columns.take();
        if (outline.id > 0 && !columns.isAtEnd())
            outline.kind = Kind::List;
    } else if (word == activeWord && !columns.isAtEnd()) {
        outline.kind = Kind::Active;
    } else if (word == nextWord) {
        outline.id = TabLine::number(columns.take());
        outline.list = TabLine::number(columns.take());
        if (outline.id > 0 && outline.list > 0)
            outline.kind = Kind::Next;
    }
    return outline;
}

QByteArrayView ToDoLine::column(QByteArrayView line, int number)
{
    Columns columns(line);
    for (; number > 0; --number)
        columns.take();
    return columns.take();
}

ToDoList ToDoLine::list(QByteArrayView line)
{
    return {TabLine::number(column(line, ListId)), listKind(column(line, ListKindWord)),
            TabLine::text(column(line, ListName))};
}

ToDoItem ToDoLine::item(QByteArrayView line)
{
    Columns columns(line);
    columns.take();
    ToDoItem item;
    item.id = TabLine::number(columns.take());
    item.list = TabLine::number(columns.take());
    item.level = level(columns.take()).value_or(ItemLevel::Item);
    const QByteArrayView due = columns.take();
    item.due = TabLine::date(due);
    item.offset = offset(due);
    item.actual = TabLine::date(columns.take());
    item.who = TabLine::text(columns.take());
    item.repeat = TabLine::text(columns.take());
    item.created = TabLine::date(columns.take());
    item.text = TabLine::text(columns.take());
    item.note = TabLine::text(columns.take());
    return item;
}

QByteArray ToDoLine::make(const ToDoList &list, QByteArrayView former)
{
    return joined(columnsOf(list), columnsOf(ToDoLine::list(former)), former);
}

QByteArray ToDoLine::make(const ToDoItem &item, QByteArrayView former)
{
    return joined(columnsOf(item), columnsOf(ToDoLine::item(former)), former);
}

QByteArray ToDoLine::makeActive(QByteArrayView digest, QByteArrayView formerDigest, QByteArrayView former)
{
    return joined<3>({activeWord.toByteArray(), digest.toByteArray(), formerDigest.toByteArray()}, {},
                     former);
}

QByteArray ToDoLine::makeNext(int item, int list, QByteArrayView former)
{
    return joined<3>({nextWord.toByteArray(), QByteArray::number(item), QByteArray::number(list)}, {},
                     former);
}
