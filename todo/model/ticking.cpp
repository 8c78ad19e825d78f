// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/tabline.h"
#include "todo/model/comingback.h"
#include "todo/model/lines.h"
#include "todo/model/repeat.h"
#include "todo/model/todoactions.h"

#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

using ToDoActions::Result;

/// One item with its steps at a time: ticks it, opens it again, makes its next one.
class Ticking
{
public:
    Ticking(const ToDoSheet &sheet, QDate actual, QDate today)
        : m_sheet(sheet)
        , m_actual(actual)
        , m_today(today)
    {}

    const ToDoSheet &sheet() const { return m_sheet; }

    /// Ticks the item of `row`; its open steps are done with it.
    void tick(int row)
    {
        ToDoItem item = m_sheet.item(row);
        const auto repeat = Repeat::ofFile(item.repeat);
        std::vector<ToDoItem> next;
        if (repeat)
            next = nextOf(row, item, *repeat);
        if (!next.empty())
            sayMissed(item, repeat->missed(item.due, m_today));
        item.actual = m_actual;
        m_sheet.set(row, item);
        const std::vector<int> steps = stepRows(row);
        for (const int step : steps)
            tickStep(step);
        if (!next.empty())
            m_sheet.addAll(next, (steps.empty() ? row : steps.back()) + 1);
    }

    /// Opens the item of `row`. Where its next one stands as it was made, that goes; where not, this one does
    /// not come back any more.
    void untick(int row)
    {
        ToDoItem item = m_sheet.item(row);
        const QDate done = item.actual;
        item.actual = {};
        if (const auto repeat = Repeat::ofFile(item.repeat)) {
            const int next = nextRow(item);
            dropMissed(item);
            if (next >= 0 && isAsMade(m_sheet.item(next), item, *repeat, done))
                removeWithSteps(next);
            else if (next >= 0)
                item.repeat.clear();
        }
        m_sheet.set(m_sheet.rowOf(item.id), item);
    }

private:
    /// The rows of the steps below an item.
    std::vector<int> stepRows(int row) const
    {
        std::vector<int> steps;
        if (m_sheet.levelOf(row) != ItemLevel::Item)
            return steps;
        for (int step = row + 1; step < m_sheet.rowCount(); ++step) {
            if (m_sheet.listOf(step) != m_sheet.listOf(row))
                continue;
            if (m_sheet.levelOf(step) != ItemLevel::Step)
                break;
            steps.push_back(step);
        }
        return steps;
    }

    void tickStep(int row)
    {
        ToDoItem step = m_sheet.item(row);
        if (step.actual.isValid())
            return;
        step.actual = m_actual;
        m_sheet.set(row, step);
    }

    /// The next one of a repeating item, with its steps; none where the calendar ends before, and where an
    /// open one stands there already.
    std::vector<ToDoItem> nextOf(int row, const ToDoItem &item, const Repeat &repeat) const
    {
        const QDate due = repeat.next(item.due, m_actual, m_today);
        if (!due.isValid() || nextRow(item) >= 0)
            return {};
        ToDoItem next = item;
        next.due = due;
        next.created = m_today;
        next.who = Turns::next(item.who);
        dropMissed(next);
        std::vector<ToDoItem> items{next};
        for (const int step : stepRows(row)) {
            ToDoItem copy = m_sheet.item(step);
            if (copy.due.isValid() && item.due.isValid())
                copy.due = due.addDays(item.due.daysTo(copy.due));
            copy.actual = {};
            copy.created = m_today;
            items.push_back(copy);
        }
        return items;
    }

    /// The row of the open copy of `item`; -1 where there is none.
    int nextRow(const ToDoItem &item) const
    {
        for (int row = 0; row < m_sheet.rowCount(); ++row) {
            if (m_sheet.listOf(row) != item.list || !m_sheet.isOpen(row) || m_sheet.idOf(row) == item.id)
                continue;
            const ToDoItem other = m_sheet.item(row);
            if (other.repeat == item.repeat && other.text == item.text)
                return row;
        }
        return -1;
    }

    static bool isAsMade(const ToDoItem &next, const ToDoItem &item, const Repeat &repeat, QDate done)
    {
        return next.note == item.note && next.who == Turns::next(item.who) &&
               next.due == repeat.next(item.due, done, next.created);
    }

    void removeWithSteps(int row)
    {
        std::vector<int> rows = stepRows(row);
        rows.insert(rows.begin(), row);
        m_sheet.removeRows(rows);
    }

    static void sayMissed(ToDoItem &item, int dates)
    {
        if (dates > 0)
            item.note += (item.note.isEmpty() ? QString() : u"\n"_s) + ToDoLines::missed(dates);
    }

    /// Takes what `sayMissed` said out of the note.
    static void dropMissed(ToDoItem &item)
    {
        QStringList lines = item.note.split(u'\n');
        const QString &last = lines.back();
        const int dates = last.left(last.indexOf(u' ')).toInt();
        if (dates > 0 && last == ToDoLines::missed(dates))
            lines.removeLast();
        item.note = lines.join(u'\n');
    }

    ToDoSheet m_sheet;
    QDate m_actual;
    QDate m_today;
};

/// Lets `change` work on each item of `ids` that `isMeant`.
template <typename IsMeant, typename Change>
Result changeTicks(Ticking ticking, const std::vector<int> &ids, const QString &what, IsMeant isMeant,
                   Change change)
{
    QStringList texts;
    std::vector<int> changed;
    for (const int id : ids) {
        const int row = ticking.sheet().rowOf(id);
        if (row < 0 || !isMeant(ticking.sheet(), row))
            continue;
        texts += TabLine::text(ticking.sheet().textBytes(row));
        changed.push_back(id);
        change(ticking, row);
    }
    return {.sheet = ticking.sheet(),
            .title = texts.isEmpty() ? QString() : ToDoLines::acted(what, texts),
            .ids = changed};
}

} // namespace

Result ToDoActions::tick(const ToDoSheet &sheet, const std::vector<int> &ids, QDate actual, QDate today)
{
    return changeTicks(
        Ticking(sheet, actual, today), ids, u"Done"_s,
        [](const ToDoSheet &held, int row) { return held.isOpen(row); },
        [](Ticking &ticking, int row) { ticking.tick(row); });
}

Result ToDoActions::untick(const ToDoSheet &sheet, const std::vector<int> &ids)
{
    return changeTicks(
        Ticking(sheet, {}, {}), ids, u"Not done"_s,
        [](const ToDoSheet &held, int row) { return held.isDone(row); },
        [](Ticking &ticking, int row) { ticking.untick(row); });
}

Result ToDoActions::setActual(const ToDoSheet &sheet, const std::vector<int> &ids, QDate actual, QDate today)
{
    if (!actual.isValid())
        return untick(sheet, ids);
    Result ticked = tick(sheet, ids, actual, today);
    QStringList texts;
    for (const int id : ids) {
        const int row = ticked.sheet.rowOf(id);
        if (row < 0 || !ticked.sheet.isDone(row) || ticked.sheet.actualOf(row) == actual)
            continue;
        ToDoItem item = ticked.sheet.item(row);
        item.actual = actual;
        ticked.sheet.set(row, item);
        ticked.ids.push_back(id);
        texts += item.text;
    }
    if (!ticked.isChange() && !texts.isEmpty())
        ticked.title = ToDoLines::acted(u"Date"_s, texts);
    return ticked;
}
