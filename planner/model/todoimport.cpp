// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/todoimport.h"

#include "shell/core/dates.h"
#include "storage/valuefile.h"

using namespace Qt::Literals::StringLiterals;

namespace ToDoImport {

std::vector<DatedToDo> items(const DataFolder &folder, DateStyle style)
{
    const QStringList values = ValueFile::read(folder.filePath(u"TODOActv.FIL"_s));
    std::vector<DatedToDo> items;
    // Three values an item: text, date, and one that the planner has no use for. A cut last item may lack it.
    for (qsizetype i = 0; i + 1 < values.size(); i += 3) {
        const QString text = AnsiText::trimmedBlanks(values[i]).toString();
        const QString dateText =
            AnsiText::trimmedBlanks(AnsiText::trimmedBlanks(values[i + 1]).right(10)).toString();
        if (text.isEmpty() || dateText.isEmpty())
            continue;
        if (const auto date = Dates::parse(dateText, style))
            items.push_back({*date, text});
    }
    return items;
}

} // namespace ToDoImport
