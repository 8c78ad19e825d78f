// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/activefile.h"

#include "shell/core/dates.h"
#include "storage/ansitext.h"
#include "storage/tabline.h"
#include "storage/valuefile.h"
#include "todo/model/lines.h"

#include <QCryptographicHash>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype dateLength = 10;

struct Triple {
    QString text;
    QString dateText;
    QDate date;
    QString list;

    /// What makes it the same thing to do as another.
    QString key() const { return date.toString(Qt::ISODate) + u'\t' + text; }
};

QString trimmed(const QString &text)
{
    return AnsiText::trimmedBlanks(text).toString();
}

/// The triples of `file` that have a text. The last may be cut short.
std::vector<Triple> triplesOf(QByteArrayView file, DateStyle style)
{
    std::vector<Triple> triples;
    for (ValueFile::Cutter cutter(file); !cutter.isAtEnd();) {
        Triple triple;
        triple.text = trimmed(cutter.take());
        triple.dateText = trimmed(cutter.take());
        triple.list = trimmed(cutter.take());
        const QString date = trimmed(triple.dateText.right(dateLength));
        triple.date = Dates::parse(date, style).value_or(QDate());
        if (!triple.text.isEmpty())
            triples.push_back(triple);
    }
    return triples;
}

/// The text of a column in the code page, in one line. Most texts are the same bytes in both.
QByteArray ansiText(QByteArrayView column)
{
    const auto isSame = [](char byte) { return byte >= ' ' && byte <= '~' && byte != '\\'; };
    if (std::ranges::all_of(column, isSame))
        return column.toByteArray();
    return AnsiText::encode(TabLine::text(column).replace(u'\n', u' '));
}

bool isTold(const ToDoSheet &sheet, int row)
{
    const ToDoList *list = sheet.list(sheet.listOf(row));
    return sheet.isOpen(row) && list != nullptr && list->kind != ListKind::Template;
}

/// The list that other programs know by `name`; null where there is none.
const ToDoList *listNamed(const ToDoSheet &sheet, const QString &name)
{
    const auto isNamed = [&name](const ToDoList &list) {
        return list.kind != ListKind::Template && trimmed(list.name).compare(name, Qt::CaseInsensitive) == 0;
    };
    const auto list = std::ranges::find_if(sheet.lists(), isNamed);
    return list == sheet.lists().end() ? nullptr : &*list;
}

int firstList(ToDoSheet &sheet)
{
    for (const ToDoList &list : sheet.lists()) {
        if (list.kind != ListKind::Template)
            return list.id;
    }
    return sheet.addList({0, ListKind::Plain, ToDoLines::firstList()});
}

/// What a triple says beyond an item's columns goes into its note: a date that cannot be read, a list that is
/// not there, and a text that is too long.
ToDoItem itemOf(const Triple &triple, const ToDoSheet &sheet, int firstList, QDate today)
{
    ToDoItem item{.list = firstList, .due = triple.date, .created = today};
    item.text = triple.text.left(ToDoItem::longestText).simplified();
    QStringList note;
    if (item.text != triple.text)
        note.append(triple.text);
    if (!triple.date.isValid() && !triple.dateText.isEmpty())
        note.append(triple.dateText);
    if (const ToDoList *list = listNamed(sheet, triple.list))
        item.list = list->id;
    else if (!triple.list.isEmpty())
        note.append(triple.list);
    item.note = note.join(u'\n').left(ToDoItem::longestNote);
    return item;
}

void add(ToDoSheet &sheet, const std::vector<Triple> &triples, QDate today)
{
    if (triples.empty())
        return;
    const int first = firstList(sheet);
    std::vector<ToDoItem> items;
    items.reserve(triples.size());
    for (const Triple &triple : triples)
        items.push_back(itemOf(triple, sheet, first, today));
    sheet.addAll(items);
}

} // namespace

QByteArray ActiveFile::make(const ToDoSheet &sheet)
{
    QByteArray file;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (!isTold(sheet, row))
            continue;
        const QDate due = sheet.dueOf(row);
        ValueFile::append(file, ansiText(sheet.textBytes(row)));
        ValueFile::append(file, due.isValid() ? due.toString(Qt::ISODate).toLatin1() : QByteArray());
        ValueFile::append(file, AnsiText::encode(sheet.list(sheet.listOf(row))->name));
    }
    return file;
}

QByteArray ActiveFile::makeNames(const ToDoSheet &sheet)
{
    QByteArray file;
    for (const ToDoList &list : sheet.lists()) {
        if (list.kind != ListKind::Template)
            ValueFile::append(file, AnsiText::encode(list.name));
    }
    return file;
}

QByteArray ActiveFile::digest(QByteArrayView file)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(file);
    return hash.result().toHex();
}

ToDoSheet ActiveFile::firstSheet(QByteArrayView names, QByteArrayView active, DateStyle style, QDate today)
{
    ToDoSheet sheet;
    for (const QString &name : ValueFile::decode(names)) {
        if (!trimmed(name).isEmpty() && listNamed(sheet, trimmed(name)) == nullptr)
            sheet.addList({0, ListKind::Plain, trimmed(name)});
    }
    firstList(sheet);
    add(sheet, triplesOf(active, style), today);
    return sheet;
}

int ActiveFile::takeIn(ToDoSheet &sheet, QByteArrayView active, DateStyle style, QDate today)
{
    QSet<QString> known;
    // As they would be read there: what the code page lacks, or a quote may stand in the way of, is alike
    // then.
    for (const Triple &triple : triplesOf(make(sheet), style))
        known.insert(triple.key());
    std::vector<Triple> triples = triplesOf(active, style);
    std::erase_if(triples, [&known](const Triple &triple) { return known.contains(triple.key()); });
    add(sheet, triples, today);
    return int(triples.size());
}
