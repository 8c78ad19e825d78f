// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todoactions.h"

#include "storage/tabline.h"
#include "todo/model/lines.h"

#include <QSet>

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

using ToDoActions::Result;

QSet<int> setOf(const std::vector<int> &ids)
{
    return {ids.begin(), ids.end()};
}

QString textOf(const ToDoSheet &sheet, int row)
{
    return TabLine::text(sheet.textBytes(row));
}

/// The row behind the last of `list`, or of all rows where it has none.
int endOf(const ToDoSheet &sheet, int list)
{
    for (int row = sheet.rowCount(); row > 0; --row) {
        if (sheet.listOf(row - 1) == list)
            return row;
    }
    return sheet.rowCount();
}

int rowBefore(const ToDoSheet &sheet, int list, int beforeId)
{
    const int row = beforeId > 0 ? sheet.rowOf(beforeId) : -1;
    return row >= 0 ? row : endOf(sheet, list);
}

/// The rows of `ids` with the steps below those that are items, ascending.
std::vector<int> rowsWithSteps(const ToDoSheet &sheet, const std::vector<int> &ids)
{
    const QSet<int> chosen = setOf(ids);
    QHash<int, bool> isBelowChosen; // by list
    std::vector<int> rows;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        const bool isStep = sheet.levelOf(row) == ItemLevel::Step;
        bool &isBelow = isBelowChosen[sheet.listOf(row)];
        const bool isChosen = chosen.contains(sheet.idOf(row));
        if (!isStep)
            isBelow = isChosen && sheet.levelOf(row) == ItemLevel::Item;
        if (isChosen || (isStep && isBelow))
            rows.push_back(row);
    }
    return rows;
}

/// Changes each item of `ids` that `change` says it has changed.
Result changeEach(const ToDoSheet &sheet, const std::vector<int> &ids, const QString &what,
                  const std::function<void(ToDoItem &)> &change)
{
    Result result{.sheet = sheet, .title = {}, .ids = {}};
    const QSet<int> chosen = setOf(ids);
    QStringList texts;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (!chosen.contains(sheet.idOf(row)))
            continue;
        const ToDoItem former = sheet.item(row);
        ToDoItem item = former;
        change(item);
        if (item == former)
            continue;
        result.sheet.set(row, item);
        result.ids.push_back(item.id);
        texts += item.text;
    }
    if (!texts.isEmpty())
        result.title = ToDoLines::acted(what, texts);
    return result;
}

/// A pasted line without the sign of a list in front of it.
QString plainLine(const QString &line)
{
    QString plain = line.simplified();
    for (const QString &sign : {u"- "_s, u"* "_s, u"\u2022 "_s, u"[ ] "_s}) {
        if (plain.startsWith(sign))
            plain.remove(0, sign.size());
    }
    return plain.left(ToDoItem::longestText).trimmed();
}

/// The row of a shopping list's item with that text, an open one first; -1 where there is none.
int boughtRow(const ToDoSheet &sheet, int list, const QString &text)
{
    int found = -1;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (sheet.listOf(row) != list || sheet.levelOf(row) == ItemLevel::Heading ||
            textOf(sheet, row).compare(text, Qt::CaseInsensitive) != 0)
            continue;
        if (found < 0 || sheet.isOpen(row))
            found = row;
    }
    return found;
}

/// Takes a bought thing of a shopping list up again; false where there is none of that text.
bool takeUpAgain(Result &result, int list, const QString &text, QStringList &texts)
{
    const int row = boughtRow(result.sheet, list, text);
    if (row < 0)
        return false;
    ToDoItem item = result.sheet.item(row);
    if (item.actual.isValid()) {
        item.actual = {};
        result.sheet.set(row, item);
        texts += item.text;
    }
    result.ids.push_back(item.id);
    return true;
}

} // namespace

Result ToDoActions::newItems(const ToDoSheet &sheet, const ToDoItem &pattern, const QStringList &lines,
                             int beforeId, QDate today)
{
    Result result{.sheet = sheet, .title = {}, .ids = {}};
    const ToDoList *list = sheet.list(pattern.list);
    if (list == nullptr)
        return result;
    const bool isShopping = list->kind == ListKind::Shopping;
    QStringList texts;
    std::vector<ToDoItem> items;
    for (const QString &line : lines) {
        ToDoItem item = pattern;
        item.text = plainLine(line);
        item.created = today;
        if (item.text.isEmpty() || (isShopping && takeUpAgain(result, list->id, item.text, texts)))
            continue;
        texts += item.text;
        items.push_back(item);
    }
    if (!items.empty()) {
        const std::vector<int> ids =
            result.sheet.addAll(items, rowBefore(result.sheet, pattern.list, beforeId));
        result.ids.insert(result.ids.end(), ids.begin(), ids.end());
    }
    if (!texts.isEmpty())
        result.title = ToDoLines::acted(u"Added"_s, texts);
    return result;
}

Result ToDoActions::newHeading(const ToDoSheet &sheet, int list, const QString &text, int beforeId)
{
    Result result{.sheet = sheet, .title = {}, .ids = {}};
    const ToDoItem heading{.list = list, .level = ItemLevel::Heading, .text = plainLine(text)};
    if (heading.text.isEmpty() || sheet.list(list) == nullptr)
        return result;
    result.ids = result.sheet.addAll({heading}, rowBefore(sheet, list, beforeId));
    result.title = ToDoLines::acted(u"Added"_s, {heading.text});
    return result;
}

Result ToDoActions::setText(const ToDoSheet &sheet, int id, const QString &text)
{
    const QString plain = text.simplified().left(ToDoItem::longestText).trimmed();
    if (plain.isEmpty())
        return remove(sheet, {id});
    return changeEach(sheet, {id}, u"Changed"_s, [&plain](ToDoItem &item) { item.text = plain; });
}

Result ToDoActions::setNote(const ToDoSheet &sheet, int id, const QString &note)
{
    const QString kept = note.left(ToDoItem::longestNote);
    return changeEach(sheet, {id}, u"Note"_s, [&kept](ToDoItem &item) { item.note = kept; });
}

Result ToDoActions::setDue(const ToDoSheet &sheet, const std::vector<int> &ids, QDate due)
{
    return changeEach(sheet, ids, u"Date"_s, [due](ToDoItem &item) {
        if (item.level == ItemLevel::Heading)
            return;
        item.due = due;
        item.offset.reset();
    });
}

Result ToDoActions::setOffset(const ToDoSheet &sheet, const std::vector<int> &ids, std::optional<int> offset)
{
    return changeEach(sheet, ids, u"Date"_s, [offset](ToDoItem &item) {
        if (item.level == ItemLevel::Heading)
            return;
        item.due = {};
        item.offset = offset;
    });
}

Result ToDoActions::setWho(const ToDoSheet &sheet, const std::vector<int> &ids, const QString &who)
{
    const QString plain = who.simplified().left(ToDoItem::longestText);
    return changeEach(sheet, ids, u"Who"_s, [&plain](ToDoItem &item) {
        if (item.level != ItemLevel::Heading)
            item.who = plain;
    });
}

Result ToDoActions::setRepeat(const ToDoSheet &sheet, const std::vector<int> &ids, const QString &repeat)
{
    return changeEach(sheet, ids, u"Repeat"_s, [&repeat](ToDoItem &item) {
        if (item.level != ItemLevel::Heading)
            item.repeat = repeat;
    });
}

Result ToDoActions::moveOverdue(const ToDoSheet &sheet, int list, QDate today)
{
    std::vector<int> ids;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        const QDate due = sheet.dueOf(row);
        if (sheet.isOpen(row) && due.isValid() && due < today && (list == 0 || sheet.listOf(row) == list))
            ids.push_back(sheet.idOf(row));
    }
    Result result = setDue(sheet, ids, today);
    if (result.isChange())
        result.title += u", moved to today"_s;
    return result;
}

Result ToDoActions::remove(const ToDoSheet &sheet, const std::vector<int> &ids)
{
    Result result{.sheet = sheet, .title = {}, .ids = {}};
    const std::vector<int> rows = rowsWithSteps(sheet, ids);
    const QSet<int> chosen = setOf(ids);
    QStringList texts;
    for (const int row : rows) {
        if (chosen.contains(sheet.idOf(row)))
            texts += textOf(sheet, row);
    }
    if (rows.empty())
        return result;
    result.sheet.removeRows(rows);
    result.title = ToDoLines::acted(u"Deleted"_s, texts);
    return result;
}

Result ToDoActions::move(const ToDoSheet &sheet, const std::vector<int> &ids, int list, int beforeId)
{
    Result result{.sheet = sheet, .title = {}, .ids = {}};
    const std::vector<int> rows = rowsWithSteps(sheet, ids);
    if (rows.empty() || sheet.list(list) == nullptr)
        return result;
    QStringList texts;
    const QSet<int> chosen = setOf(ids);
    const int before = rowBefore(sheet, list, beforeId);
    for (const int row : rows) {
        ToDoItem item = sheet.item(row);
        if (chosen.contains(item.id)) {
            texts += item.text;
            result.ids.push_back(item.id);
        }
        item.list = list;
        result.sheet.set(row, item);
    }
    result.sheet.move(rows, before);
    if (result.sheet == sheet)
        return result;
    result.title = ToDoLines::acted(u"Moved"_s, texts);
    return result;
}

Result ToDoActions::indent(const ToDoSheet &sheet, const std::vector<int> &ids)
{
    // What stands first in its list, or below a heading, has nothing to be a step of.
    QHash<int, bool> hasItemAbove;
    QSet<int> first;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        bool &hasItem = hasItemAbove[sheet.listOf(row)];
        if (!hasItem)
            first.insert(sheet.idOf(row));
        hasItem = sheet.levelOf(row) != ItemLevel::Heading;
    }
    return changeEach(sheet, ids, u"Step"_s, [&first](ToDoItem &item) {
        if (item.level == ItemLevel::Item && !first.contains(item.id))
            item.level = ItemLevel::Step;
    });
}

Result ToDoActions::outdent(const ToDoSheet &sheet, const std::vector<int> &ids)
{
    return changeEach(sheet, ids, u"No longer a step"_s, [](ToDoItem &item) {
        if (item.level == ItemLevel::Step)
            item.level = ItemLevel::Item;
    });
}

std::vector<int> ToDoActions::withSteps(const ToDoSheet &sheet, int id)
{
    std::vector<int> ids;
    for (const int row : rowsWithSteps(sheet, {id}))
        ids.push_back(sheet.idOf(row));
    return ids;
}

QStringList ToDoActions::offered(const ToDoSheet &sheet, int list, QStringView typed, int most)
{
    const QString wanted = typed.trimmed().toString();
    QStringList begins;
    QStringList holds;
    QSet<QString> onList;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (sheet.listOf(row) == list && sheet.isOpen(row))
            onList.insert(textOf(sheet, row).toCaseFolded());
    }
    for (int row = sheet.rowCount() - 1; row >= 0 && !wanted.isEmpty(); --row) {
        if (sheet.listOf(row) != list || !sheet.isDone(row))
            continue;
        const QString text = textOf(sheet, row);
        const qsizetype at = text.indexOf(wanted, 0, Qt::CaseInsensitive);
        if (at < 0 || onList.contains(text.toCaseFolded()))
            continue;
        onList.insert(text.toCaseFolded());
        (at == 0 ? begins : holds) += text;
    }
    return (begins + holds).mid(0, most);
}
