// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todoviews.h"

#include "shell/core/dates.h"
#include "todo/model/comingback.h"
#include "todo/model/todosearch.h"
#include "todo/model/viewwords.h"

#include <QHash>

#include <algorithm>
#include <map>

namespace {

using Rows = std::vector<ToDoRow>;
using Places = std::vector<int>; ///< rows of the sheet

/// A view of a sheet while it is made.
class View
{
public:
    View(const ToDoSheet &sheet, const ToDoViews::Wanted &wanted);

    Rows list() const;
    Rows today() const;
    Rows coming() const;
    Rows byPerson() const;
    Rows done() const;
    Rows found() const;

private:
    bool isOfTemplate(int row) const { return m_templates.contains(m_sheet.listOf(row)); }
    bool isTicked(int row) const { return m_wanted.ticked.contains(m_sheet.idOf(row)); }
    bool isHeading(int row) const { return m_sheet.levelOf(row) == ItemLevel::Heading; }
    /// Whether it is shown as something to do: open, or ticked just now.
    bool isToDo(int row) const
    {
        return !isHeading(row) && !isOfTemplate(row) && (!m_sheet.isDone(row) || isTicked(row));
    }
    void add(Rows &rows, int row) const;
    void addGroup(Rows &rows, const QString &words, const Places &places) const;
    Places inOrder(const Places &places) const;
    QString dayWords(QDate day) const;

    const ToDoSheet &m_sheet;
    const ToDoViews::Wanted &m_wanted;
    QSet<int> m_templates;
};

View::View(const ToDoSheet &sheet, const ToDoViews::Wanted &wanted)
    : m_sheet(sheet)
    , m_wanted(wanted)
{
    const bool isOfList = wanted.shown.kind == Shown::List;
    for (const ToDoList &list : sheet.lists()) {
        if (list.kind == ListKind::Template && !isOfList)
            m_templates.insert(list.id);
    }
}

void View::add(Rows &rows, int row) const
{
    rows.push_back({isHeading(row) ? ToDoRow::Heading : ToDoRow::Item, m_sheet.idOf(row), {}});
    if (m_sheet.idOf(row) == m_wanted.openNote)
        rows.push_back({ToDoRow::Note, m_wanted.openNote, {}});
}

void View::addGroup(Rows &rows, const QString &words, const Places &places) const
{
    if (places.empty())
        return;
    rows.push_back({ToDoRow::Group, 0, words});
    for (const int row : places)
        add(rows, row);
}

QString View::dayWords(QDate day) const
{
    return ToDoViewWords::day(day, m_wanted.today, m_wanted.style);
}

/// In the order of their dates, each item with its steps; those without a date come last.
Places View::inOrder(const Places &places) const
{
    if (m_wanted.order == ToDoViews::Order::Own)
        return places;
    std::vector<Places> items;
    for (const int row : places) {
        if (m_sheet.levelOf(row) != ItemLevel::Step || items.empty())
            items.emplace_back();
        items.back().push_back(row);
    }
    const auto dateOf = [this](const Places &item) {
        return m_wanted.order == ToDoViews::Order::ByDue ? m_sheet.dueOf(item[0]) : m_sheet.actualOf(item[0]);
    };
    std::ranges::stable_sort(items, [&](const Places &one, const Places &other) {
        const QDate first = dateOf(one);
        const QDate second = dateOf(other);
        if (!first.isValid() || !second.isValid())
            return first.isValid() && !second.isValid();
        return m_wanted.isBackwards ? second < first : first < second;
    });
    Places sorted;
    for (const Places &item : items)
        sorted.insert(sorted.end(), item.begin(), item.end());
    return sorted;
}

Rows View::list() const
{
    const ComingBack comingBack(m_sheet, m_wanted.today);
    const bool isSorted = m_wanted.order != ToDoViews::Order::Own;
    Places shown;
    Places later;
    Places *taking = nullptr; // where the steps of the item above go
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        if (m_sheet.listOf(row) != m_wanted.shown.list)
            continue;
        if (isHeading(row)) {
            taking = nullptr;
            if (!isSorted)
                shown.push_back(row);
            continue;
        }
        if (m_sheet.levelOf(row) == ItemLevel::Item)
            taking = comingBack.isLater(row) ? &later : isToDo(row) ? &shown : nullptr;
        else if (!taking && isToDo(row))
            taking = &shown; // a step that is open or was ticked just now, under something done
        if (taking)
            taking->push_back(row);
    }
    Rows rows;
    for (const int row : inOrder(shown))
        add(rows, row);
    if (later.empty())
        return rows;
    const auto count =
        std::ranges::count(later, ItemLevel::Item, [this](int row) { return m_sheet.levelOf(row); });
    rows.push_back({ToDoRow::Later, 0, ToDoViewWords::later(int(count), m_wanted.isLaterShown)});
    if (m_wanted.isLaterShown) {
        for (const int row : later)
            add(rows, row);
    }
    return rows;
}

Rows View::today() const
{
    Places overdue;
    Places due;
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        const QDate day = m_sheet.dueOf(row);
        if (!day.isValid() || day > m_wanted.today || !isToDo(row))
            continue;
        (day < m_wanted.today ? overdue : due).push_back(row);
    }
    std::ranges::stable_sort(overdue, {}, [this](int row) { return m_sheet.dueOf(row); });
    Rows rows;
    addGroup(rows, ToDoViewWords::overdue(), overdue);
    addGroup(rows, dayWords(m_wanted.today), due);
    return rows;
}

Rows View::coming() const
{
    std::map<QDate, Places> days;
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        const QDate day = m_sheet.dueOf(row);
        if (day >= m_wanted.today && day < m_wanted.today.addDays(ToDoViews::daysComing) && isToDo(row))
            days[day].push_back(row);
    }
    Rows rows;
    for (const auto &[day, places] : days)
        addGroup(rows, dayWords(day), places);
    return rows;
}

/// Where they take turns, it is the first one's.
Rows View::byPerson() const
{
    std::map<QString, std::pair<QString, Places>> persons;
    Places nobody;
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        if (m_sheet.levelOf(row) != ItemLevel::Item || !isToDo(row))
            continue;
        const QString who = Turns::current(m_sheet.item(row).who);
        if (who.isEmpty()) {
            nobody.push_back(row);
            continue;
        }
        auto &[name, places] = persons[who.toCaseFolded()];
        if (name.isEmpty())
            name = who;
        places.push_back(row);
    }
    Rows rows;
    for (const auto &[key, person] : persons)
        addGroup(rows, person.first, person.second);
    addGroup(rows, ToDoViewWords::nobody(), nobody);
    return rows;
}

Rows View::done() const
{
    Places places;
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        if (m_sheet.isDone(row) && !isHeading(row) && !isOfTemplate(row))
            places.push_back(row);
    }
    std::ranges::stable_sort(places, std::greater(), [this](int row) { return m_sheet.actualOf(row); });
    Rows rows;
    QDate day;
    for (const int row : places) {
        if (const QDate actual = m_sheet.actualOf(row); actual != day) {
            day = actual;
            rows.push_back({ToDoRow::Group, 0, dayWords(day)});
        }
        add(rows, row);
    }
    return rows;
}

/// List by list, what is open before what is done. A list that has the words in its name is found as well.
Rows View::found() const
{
    const ToDoSearch search(m_wanted.shown.words);
    QHash<int, std::pair<Places, Places>> lists;
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        if (isHeading(row) || isOfTemplate(row) ||
            !search.finds(m_sheet.textBytes(row), m_sheet.noteBytes(row)))
            continue;
        auto &[open, done] = lists[m_sheet.listOf(row)];
        (m_sheet.isDone(row) ? done : open).push_back(row);
    }
    Rows rows;
    for (const ToDoList &list : m_sheet.lists()) {
        auto [open, done] = lists.value(list.id);
        if (open.empty() && done.empty() && !search.finds(list.name.toUtf8(), {}))
            continue;
        rows.push_back({ToDoRow::Group, 0, list.name, list.id});
        for (const int row : open)
            add(rows, row);
        for (const int row : done)
            add(rows, row);
    }
    return rows;
}

} // namespace

std::vector<ToDoRow> ToDoViews::rows(const ToDoSheet &sheet, const Wanted &wanted)
{
    const View view(sheet, wanted);
    switch (wanted.shown.kind) {
    case Shown::Today:
        return view.today();
    case Shown::Coming:
        return view.coming();
    case Shown::ByPerson:
        return view.byPerson();
    case Shown::Done:
        return view.done();
    case Shown::List:
        return view.list();
    case Shown::Search:
        return view.found();
    }
    return {};
}
