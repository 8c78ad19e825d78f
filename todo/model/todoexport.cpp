// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todoexport.h"

#include "shell/core/tabtext.h"
#include "storage/ansitext.h"
#include "todo/model/repeat.h"
#include "todo/model/repeatwords.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList headings()
{
    return {u"To Do Item"_s, u"To Do Date"_s, u"Actual Date"_s, u"Who"_s, u"Repeat"_s, u"Note"_s};
}

QStringList cells(const ToDoItem &item)
{
    const auto rule = Repeat::ofFile(item.repeat);
    const QString due = item.offset ? QString::number(*item.offset) : item.due.toString(Qt::ISODate);
    QStringList cells{item.text,
                      due,
                      item.actual.toString(Qt::ISODate),
                      item.who,
                      rule ? RepeatWords::of(*rule, DateStyle::Usa) : item.repeat,
                      item.note};
    for (QString &cell : cells)
        cell = TabText::cell(cell);
    return cells;
}

/// Names that a path cannot have, whatever stands behind a dot.
bool isDevice(const QString &name)
{
    static constexpr std::array<QLatin1StringView, 4> devices{"CON"_L1, "PRN"_L1, "AUX"_L1, "NUL"_L1};
    const QString base = name.section(u'.', 0, 0).trimmed();
    const bool isPort =
        base.size() == 4 &&
        (base.startsWith("COM"_L1, Qt::CaseInsensitive) || base.startsWith("LPT"_L1, Qt::CaseInsensitive)) &&
        base.at(3).isDigit();
    return isPort || std::ranges::any_of(devices, [&base](QLatin1StringView device) {
               return base.compare(device, Qt::CaseInsensitive) == 0;
           });
}

} // namespace

QByteArray ToDoExport::file(const ToDoSheet &sheet, int list)
{
    QString text = TabText::row(headings()) + u"\r\n"_s;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (sheet.listOf(row) == list)
            text += TabText::row(cells(sheet.item(row))) + u"\r\n"_s;
    }
    return AnsiText::encode(text);
}

QString ToDoExport::fileName(const QString &list)
{
    QString name = list;
    for (QChar &character : name) {
        if (character < u' ' || u"/\\:*?\"<>|"_s.contains(character))
            character = u'-';
    }
    if (isDevice(name))
        name.insert(name.section(u'.', 0, 0).size(), u'-');
    return name + u".xls"_s;
}

QString ToDoExport::text(const ToDoSheet &sheet, const std::vector<int> &ids)
{
    QString text = TabText::row(headings()) + u'\n';
    for (const int id : ids) {
        if (const int row = sheet.rowOf(id); row >= 0)
            text += TabText::row(cells(sheet.item(row))) + u'\n';
    }
    return text;
}
