// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todorecords.h"

#include "shell/core/bringingback.h"
#include "shell/core/dates.h"
#include "storage/wholefileschange.h"
#include "todo/model/listactions.h"
#include "todo/model/todofiles.h"

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The lists of a sheet in its order, each with its key.
QList<std::pair<QString, ToDoList>> keyed(const ToDoSheet &sheet)
{
    QList<std::pair<QString, ToDoList>> lists;
    QStringList names;
    for (const ToDoList &list : sheet.lists()) {
        const QString name = list.name.toCaseFolded();
        lists.append({names.contains(name) ? name + u'\n' + QString::number(list.id) : name, list});
        names.append(name);
    }
    return lists;
}

/// The id of the list with this key; 0 where there is none.
int idOf(const ToDoSheet &sheet, const QString &key)
{
    for (const auto &[known, list] : keyed(sheet)) {
        if (known == key)
            return list.id;
    }
    return 0;
}

QList<int> rowsOf(const ToDoSheet &sheet, int list)
{
    QList<int> rows;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (sheet.listOf(row) == list)
            rows.append(row);
    }
    return rows;
}

/// Puts `list` of the sheet `there`, whose key is `key`, with its items into `sheet`.
void putList(ToDoSheet &sheet, const QString &key, ToDoList list, const ToDoSheet &there, int place)
{
    std::vector<ToDoItem> items;
    for (const int row : rowsOf(there, list.id))
        items.push_back(there.item(row));
    int id = idOf(sheet, key);
    if (id > 0) {
        const QList<int> rows = rowsOf(sheet, id);
        sheet.removeRows({rows.begin(), rows.end()});
        list.id = id;
        sheet.setList(list);
    } else {
        list.id = 0;
        list.name = ListActions::freeName(sheet, list.name);
        id = sheet.addList(list, std::min(place, int(sheet.lists().size())));
    }
    for (ToDoItem &item : items)
        item.list = id;
    if (!items.empty())
        sheet.addAll(items);
}

} // namespace

ToDoRecords::ToDoRecords(const DataFolder &folder, DateStyle style, QDate today)
    : m_folder(folder)
    , m_style(style)
    , m_today(today)
{}

QString ToDoRecords::counted(int count) const
{
    return BringingBack::counted(count, u"list"_s, u"lists"_s);
}

ToDoSheet ToDoRecords::sheet() const
{
    return ToDoFiles(m_folder).read(m_style, m_today);
}

/// Ids count for nothing: what comes back gets others.
std::vector<FunctionRecord> ToDoRecords::all() const
{
    const ToDoSheet sheet = this->sheet();
    std::map<int, QByteArray> contents;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        ToDoItem item = sheet.item(row);
        QByteArray &content = contents[std::exchange(item.list, 0)];
        item.id = 0;
        content += ToDoLine::make(item) + '\n';
    }
    std::vector<FunctionRecord> records;
    for (const auto &[key, list] : keyed(sheet)) {
        const QByteArray head = ToDoLine::make(ToDoList{.id = 0, .kind = list.kind, .name = list.name});
        const QByteArray content = head + '\n' + contents[list.id];
        records.push_back({key, list.name, BringingBack::markOf(content)});
    }
    return records;
}

QString ToDoRecords::lineOf(const ToDoItem &item) const
{
    QStringList parts{item.level == ItemLevel::Step ? u"- "_s + item.text : item.text};
    if (item.due.isValid())
        parts.append(u"due "_s + Dates::shortWithYear(item.due, m_style));
    if (item.actual.isValid())
        parts.append(u"done "_s + Dates::shortWithYear(item.actual, m_style));
    for (const QString &text : {item.who, item.note.simplified()}) {
        if (!text.isEmpty())
            parts.append(text);
    }
    return parts.join(u", "_s);
}

QStringList ToDoRecords::lines(const QString &key) const
{
    QStringList lines;
    const ToDoSheet sheet = this->sheet();
    for (const int row : rowsOf(sheet, idOf(sheet, key)))
        lines.append(lineOf(sheet.item(row)));
    return lines;
}

RecordsBack ToDoRecords::bringBack(const FunctionRecords &from, const QStringList &keys)
{
    const auto *source = dynamic_cast<const ToDoRecords *>(&from);
    if (!source)
        return {};
    if (const QString why = BringingBack::whyNot(m_folder); !why.isEmpty())
        return BringingBack::refused(why);
    const ToDoFiles files(m_folder);
    ToDoFiles::Opened here = files.open(m_style, m_today);
    if (!here.whyLocked.isEmpty())
        return BringingBack::refused(here.whyLocked);
    const ToDoSheet there = source->sheet();
    const auto lists = keyed(there);
    QStringList back;
    QString last;
    for (qsizetype place = 0; place < lists.size(); ++place) {
        const auto &[key, list] = lists[place];
        if (!keys.contains(key))
            continue;
        putList(here.sheet, key, list, there, int(place));
        back.append(key);
        last = list.name;
    }
    if (back.isEmpty())
        return {};
    const auto change = std::make_shared<WholeFilesChange>();
    files.addTo(*change, here.sheet);
    return BringingBack::done(change, m_folder, back, back.size() == 1 ? last : counted(int(back.size())));
}
