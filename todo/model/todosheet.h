// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/todoitem.h"
#include "todo/model/todoline.h"

#include <QByteArray>
#include <QList>

#include <tuple>
#include <utility>
#include <vector>

/// All lists with their items, ten thousand as quickly as ten: the lines stay the bytes of the file, and only
/// what is asked for is decoded. A value; copies share. Lines that nobody here can read stay where they
/// stand.
class ToDoSheet
{
public:
    ToDoSheet() = default;

    /// What `file` holds, as far as it can be read; nothing of a foreign one. A second list or item with an
    /// id gets one of its own; items of lists that are not there are in a list "Found".
    static ToDoSheet fromFile(const QByteArray &file);
    /// The line with the digests always stands first; behind it that of the next ids, where the lines alone
    /// would give one anew that was used before.
    QByteArray toFile(QByteArrayView digest, QByteArrayView formerDigest) const;

    /// The digests in the file: of the other programs' file that belongs to this content, and of the one that
    /// lay there when this was written.
    std::pair<QByteArray, QByteArray> digests() const;

    const std::vector<ToDoList> &lists() const { return m_lists; }
    /// Null where no list has that id.
    const ToDoList *list(int id) const;

    /// Items, steps and headings of all lists, in the order of the file.
    int rowCount() const { return int(m_rows.size()); }
    ToDoItem item(int row) const { return ToDoLine::item(bytes(rowLine(row))); }
    /// -1 where no item has that id.
    int rowOf(int id) const;

    int idOf(int row) const { return rowLine(row).outline.id; }
    int listOf(int row) const { return rowLine(row).outline.list; }
    ItemLevel levelOf(int row) const { return rowLine(row).outline.level; }
    QDate dueOf(int row) const { return dateOf(rowLine(row).outline.due); }
    QDate actualOf(int row) const { return dateOf(rowLine(row).outline.actual); }
    bool isDone(int row) const { return rowLine(row).outline.actual > 0; }
    bool isOpen(int row) const { return !isDone(row) && levelOf(row) != ItemLevel::Heading; }

    /// UTF-8 as in the file, with its escapes, for searches.
    QByteArrayView textBytes(int row) const;
    QByteArrayView noteBytes(int row) const;
    /// Empty where the item does not come back.
    QByteArrayView repeatBytes(int row) const;

    /// Adds an item before the row `before`, behind all of them where that is -1. Its id, given anew where it
    /// is 0 or taken.
    int add(ToDoItem item, int before = -1);
    /// The same for several at once, which get new ids.
    std::vector<int> addAll(std::vector<ToDoItem> items, int before = -1);
    void set(int row, const ToDoItem &item);
    void remove(int row) { removeLine(m_rows[row]); }
    /// Several at once, in ascending order.
    void removeRows(const std::vector<int> &rows);
    /// Puts `rows`, which keep their order, before the row `before`, behind all of them where that is -1.
    void move(const std::vector<int> &rows, int before);

    /// Adds a list at `place` among the lists, behind them where that is -1. Its id, as with `add`.
    int addList(ToDoList list, int place = -1);
    void setList(const ToDoList &list);
    /// Removes a list with its items.
    void removeList(int id);
    void moveList(int id, int place);

    /// The highest ids that were ever given to an item and to a list.
    std::pair<int, int> lastIds() const { return {m_lastItemId, m_lastListId}; }
    /// Those of before, at least what the lines have, once all that was given since is gone.
    void setLastIds(std::pair<int, int> ids)
    {
        std::tie(m_lastItemId, m_lastListId) = ids;
        index();
    }

    /// The lines of the file below the first one and those of the digests and the next ids, for differences
    /// and comparisons.
    int lineCount() const { return int(m_lines.size()); }
    QByteArrayView lineBytes(int line) const { return bytes(m_lines[line]); }
    void insertLine(int line, QByteArrayView bytes);
    void removeLine(int line);
    /// Several at once: `lines` ascending, and places as they are when all are in.
    void removeLines(const std::vector<int> &lines);
    void insertLines(const std::vector<std::pair<int, QByteArray>> &lines);

    bool operator==(const ToDoSheet &other) const;

private:
    struct Line {
        qint32 at = 0;
        qint32 length = 0;
        ToDoLine::Outline outline;
    };

    static QDate dateOf(qint32 day) { return day > 0 ? QDate::fromJulianDay(day) : QDate(); }

    QByteArrayView bytes(const Line &line) const
    {
        return QByteArrayView(m_bytes).sliced(line.at, line.length);
    }
    const Line &rowLine(int row) const { return m_lines[m_rows[row]]; }
    Line keep(QByteArrayView bytes);
    void readLines(qsizetype from);
    void index();
    void giveIds();
    void findLost();
    QByteArray nextIds() const;
    int newItemId() const;
    int newListId() const;

    QByteArray m_bytes;   ///< the file as it was read; behind it the lines that were made since
    QByteArray m_active;  ///< the line with the digests, as it was read
    QByteArray m_next;    ///< that with the next ids
    QList<Line> m_lines;  ///< all others
    QList<qint32> m_rows; ///< the line of each item
    std::vector<ToDoList> m_lists;
    std::vector<qint32> m_listLines;
    int m_lastItemId = 0; ///< ever given, in the file too: no id is used twice
    int m_lastListId = 0;
};
