// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todopages.h"

#include "shell/core/dates.h"
#include "todo/model/comingback.h"
#include "todo/model/todoviews.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using ToDoPages::Options;

constexpr int emptyLines = 10;
const QString openBox = u"\u2610"_s;
const QString tickedBox = u"\u2611"_s;

/// Lists on their way to paper.
class Paper
{
public:
    Paper(const ToDoSheet &sheet, const Options &options, const PageContext &context, Page &page)
        : m_sheet(sheet)
        , m_options(options)
        , m_context(context)
        , m_page(page)
        , m_later(sheet, context.today)
    {}

    void addList(const ToDoList &list);
    void addView(const Shown &shown);
    void addPerson(const QString &person);
    void addDone();
    void addEmptyLines();

private:
    bool isShown(int row) const
    {
        const bool isHeading = m_sheet.levelOf(row) == ItemLevel::Heading;
        return isHeading || (m_sheet.isOpen(row) && !m_later.isLater(row));
    }
    void startTable(bool isShopping, bool hasWho);
    void addRow(const ToDoItem &item, bool hasWho);
    void addWords(const QString &words);
    QString day(const ToDoItem &item) const;
    bool sayNothing(bool isEmpty);

    const ToDoSheet &m_sheet;
    const Options &m_options;
    const PageContext &m_context;
    Page &m_page;
    ComingBack m_later;
    bool m_isShopping = false;
    qsizetype m_columns = 0;
};

void Paper::startTable(bool isShopping, bool hasWho)
{
    PageItem::Columns columns;
    m_isShopping = isShopping;
    if (m_options.hasBoxes)
        columns.weights.push_back(0.3);
    columns.weights.push_back(isShopping ? 3.2 : 4.6);
    if (m_options.hasDates && !isShopping)
        columns.weights.push_back(1.5);
    if (hasWho && !isShopping)
        columns.weights.push_back(1.2);
    columns.across = isShopping ? 2 : 1;
    columns.endsEven = isShopping;
    m_columns = qsizetype(columns.weights.size());
    m_page.table(columns);
}

QString Paper::day(const ToDoItem &item) const
{
    const QDate date = m_options.what == Options::Done ? item.actual : item.due;
    if (!date.isValid())
        return {};
    const QString text = date.year() == m_context.today.year() ? Dates::shortText(date, m_context.style)
                                                               : Dates::shortWithYear(date, m_context.style);
    return m_options.what != Options::Done && date < m_context.today ? text + u", overdue"_s : text;
}

/// A heading inside a table, kept with the row below it.
void Paper::addWords(const QString &words)
{
    QStringList cells(m_columns);
    cells[m_options.hasBoxes ? 1 : 0] = words;
    m_page.rowWithNext(cells, TextRole::Strong);
}

void Paper::addRow(const ToDoItem &item, bool hasWho)
{
    if (item.level == ItemLevel::Heading && m_isShopping) {
        m_page.blankLine().line(item.text, TextRole::Strong);
        startTable(true, hasWho); // the two columns of a heading stand under it
        return;
    }
    if (item.level == ItemLevel::Heading) {
        addWords(item.text);
        return;
    }
    const QString indent = item.level == ItemLevel::Step ? u"\u2013 "_s : QString();
    QStringList cells;
    if (m_options.hasBoxes)
        cells << (item.actual.isValid() ? tickedBox : openBox);
    cells << indent + item.text;
    if (m_options.hasDates && !m_isShopping)
        cells << day(item);
    if (hasWho && !m_isShopping)
        cells << Turns::current(item.who);
    if (!m_options.hasNotes || item.note.trimmed().isEmpty()) {
        m_page.row(cells);
        return;
    }
    m_page.rowWithNext(cells);
    QStringList note(m_columns);
    note[m_options.hasBoxes ? 1 : 0] = item.note.trimmed();
    m_page.row(note, TextRole::Small);
}

/// Whether there is nothing to print, which is then said.
bool Paper::sayNothing(bool isEmpty)
{
    if (isEmpty)
        m_page.line(u"Nothing is to be done."_s);
    return isEmpty;
}

void Paper::addList(const ToDoList &list)
{
    std::vector<int> rows;
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        if (m_sheet.listOf(row) == list.id && isShown(row))
            rows.push_back(row);
    }
    const auto isHeading = [this](int row) { return m_sheet.levelOf(row) == ItemLevel::Heading; };
    if (sayNothing(std::ranges::all_of(rows, isHeading)))
        return;
    startTable(list.kind == ListKind::Shopping, true);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        // A heading without anything under it stays on the screen.
        const bool isEmpty = isHeading(rows[i]) && (i + 1 == rows.size() || isHeading(rows[i + 1]));
        if (!isEmpty)
            addRow(m_sheet.item(rows[i]), true);
    }
}

void Paper::addView(const Shown &shown)
{
    const std::vector<ToDoRow> rows =
        ToDoViews::rows(m_sheet, {.shown = shown, .today = m_context.today, .style = m_context.style});
    if (sayNothing(rows.empty()))
        return;
    startTable(false, true);
    for (const ToDoRow &row : rows) {
        if (row.kind == ToDoRow::Group)
            addWords(row.words);
        else if (row.kind == ToDoRow::Item)
            addRow(m_sheet.item(m_sheet.rowOf(row.id)), true);
    }
}

/// All that is a person's turn, the dated things first.
void Paper::addPerson(const QString &person)
{
    std::vector<ToDoItem> items;
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        const ToDoList *list = m_sheet.list(m_sheet.listOf(row));
        if (!m_sheet.isOpen(row) || m_later.isLater(row) || !list || list->kind == ListKind::Template)
            continue;
        ToDoItem item = m_sheet.item(row);
        if (Turns::current(item.who).compare(person, Qt::CaseInsensitive) == 0)
            items.push_back(std::move(item));
    }
    std::ranges::stable_sort(items, [](const ToDoItem &one, const ToDoItem &other) {
        if (!one.due.isValid() || !other.due.isValid())
            return one.due.isValid() && !other.due.isValid();
        return one.due < other.due;
    });
    if (sayNothing(items.empty()))
        return;
    startTable(false, false);
    for (const ToDoItem &item : items)
        addRow(item, false);
}

void Paper::addDone()
{
    std::vector<ToDoItem> items;
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        const QDate actual = m_sheet.actualOf(row);
        const ToDoList *list = m_sheet.list(m_sheet.listOf(row));
        const bool isMeant = actual.isValid() && actual >= m_options.from && actual <= m_options.to;
        if (isMeant && m_sheet.levelOf(row) != ItemLevel::Heading && list && list->kind != ListKind::Template)
            items.push_back(m_sheet.item(row));
    }
    std::ranges::stable_sort(items, {}, &ToDoItem::actual);
    if (items.empty()) {
        m_page.line(u"Nothing was done in these days."_s);
        return;
    }
    startTable(false, true);
    for (const ToDoItem &item : items)
        addRow(item, true);
}

void Paper::addEmptyLines()
{
    if (!m_options.hasEmptyLines)
        return;
    m_page.blankLine();
    for (int line = 0; line < emptyLines; ++line)
        m_page.blank({});
}

QString titleOf(const ToDoSheet &sheet, const Options &options, const PageContext &context)
{
    switch (options.what) {
    case Options::List: {
        const ToDoList *list = sheet.list(options.list);
        return list ? list->name : u"To Do List"_s;
    }
    case Options::AllLists:
        return u"To Do List"_s;
    case Options::Today:
        return u"To Do Today"_s;
    case Options::Persons:
        return options.person.isEmpty() ? u"To Do by Person"_s : options.person;
    case Options::Done:
        return u"Done, "_s + Dates::range(options.from, options.to, context.style);
    }
    return {};
}

} // namespace

QStringList ToDoPages::persons(const ToDoSheet &sheet)
{
    QStringList persons;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        const ToDoList *list = sheet.list(sheet.listOf(row));
        const bool isMeant = sheet.isOpen(row) && list && list->kind != ListKind::Template;
        const QString person = isMeant ? Turns::current(sheet.item(row).who) : QString();
        if (!person.isEmpty() && !persons.contains(person, Qt::CaseInsensitive))
            persons << person;
    }
    persons.sort(Qt::CaseInsensitive);
    return persons;
}

Page ToDoPages::printout(const ToDoSheet &sheet, const Options &options, const PageContext &context)
{
    Page page(titleOf(sheet, options, context), Dates::monthDayYear(context.today, context.style));
    Paper paper(sheet, options, context, page);
    switch (options.what) {
    case Options::List:
        if (const ToDoList *list = sheet.list(options.list))
            paper.addList(*list);
        break;
    case Options::AllLists:
        for (const ToDoList &list : sheet.lists()) {
            if (list.kind == ListKind::Template)
                continue;
            page.line(list.name, TextRole::Heading);
            paper.addList(list);
            page.blankLine();
        }
        break;
    case Options::Today:
        paper.addView({Shown::Today, 0, {}});
        break;
    case Options::Persons:
        for (const QString &person :
             options.person.isEmpty() ? persons(sheet) : QStringList{options.person}) {
            page.section(person);
            paper.addPerson(person);
            paper.addEmptyLines();
        }
        break;
    case Options::Done:
        paper.addDone();
        break;
    }
    if (options.what != Options::Persons && options.what != Options::Done)
        paper.addEmptyLines();
    return page.close(context.today, context.style);
}
