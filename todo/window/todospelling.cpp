// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/todospelling.h"

#include "shell/frame/windowwriting.h"
#include "shell/writing/writing.h"
#include "todo/window/entryline.h"
#include "todo/window/itemsview.h"
#include "todo/window/notebox.h"
#include "todo/window/openlists.h"

#include <algorithm>

namespace {

/// The texts of items have even numbers, their notes the odd ones behind them.
int numberOf(int item, bool isNote)
{
    return 2 * item + (isNote ? 1 : 0);
}

} // namespace

ToDoSpelling::ToDoSpelling(const ToDoDesk &desk, ItemsView &view, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_view(view)
    , m_tools(new WindowWriting(
          {desk.window, desk.commands, desk.views, desk.writing},
          {[this] { return texts(); }, [this](const WalkedText &text) { change(text); }}, this))
{
    m_desk.writing.check(&m_view.entry());
    m_desk.writing.check(&m_view.note());
    connect(m_tools, &WindowWriting::said, this, &ToDoSpelling::said);
}

void ToDoSpelling::addCommands(QMenu *menu)
{
    m_tools->addCommands(menu);
}

/// The rows of what is still to be done, nobody reads over what is done: from the one that is chosen on, or
/// from the first of the list that is shown, and round.
std::vector<int> ToDoSpelling::rowsToRead() const
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    std::vector<int> rows;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (!sheet.isDone(row))
            rows.push_back(row);
    }
    if (m_view.shown().kind == Shown::List)
        std::stable_partition(rows.begin(), rows.end(),
                              [&](int row) { return sheet.listOf(row) == m_view.shown().list; });
    const std::vector<int> chosen = m_view.chosen();
    const auto first = chosen.empty() ? rows.end() : std::ranges::find(rows, sheet.rowOf(chosen.front()));
    if (first != rows.end())
        std::rotate(rows.begin(), first, rows.end());
    return rows;
}

std::vector<WalkedText> ToDoSpelling::texts() const
{
    m_view.finishEdit();
    std::vector<WalkedText> texts;
    const ToDoSheet &sheet = m_desk.lists.sheet();
    for (const int row : rowsToRead()) {
        const ToDoItem item = sheet.item(row);
        const ToDoList *list = sheet.list(item.list);
        const QString where = list ? list->name : QString();
        texts.push_back({numberOf(item.id, false), where, item.text});
        if (!item.note.isEmpty())
            texts.push_back({numberOf(item.id, true), where, item.note});
    }
    return texts;
}

void ToDoSpelling::change(const WalkedText &text)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const bool isNote = text.id % 2 == 1;
    const ToDoActions::Result result = isNote ? ToDoActions::setNote(sheet, text.id / 2, text.text)
                                              : ToDoActions::setText(sheet, text.id / 2, text.text);
    if (result.isChange())
        m_desk.lists.change(result.title, result.sheet);
}
