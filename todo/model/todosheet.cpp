// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todosheet.h"

#include "todo/model/lines.h"
#include "todo/model/todohead.h"

#include <QSet>

#include <algorithm>
#include <limits>

namespace {

using TabLine::lineEnd;

/// The id behind `last`; where there is none, the first that is free.
template <typename IsFree>
int newId(int last, IsFree isFree)
{
    if (last < ToDoLine::lastId)
        return last + 1;
    int id = 1;
    while (!isFree(id))
        ++id;
    return id;
}

} // namespace

ToDoSheet ToDoSheet::fromFile(const QByteArray &file)
{
    ToDoSheet sheet;
    const TabLine::Form form = ToDoHead::formOf(file);
    const bool isOurs = form == TabLine::Known || form == TabLine::Later;
    if (!isOurs || file.size() > std::numeric_limits<qint32>::max())
        return sheet;
    sheet.m_bytes = file;
    const qsizetype end = file.indexOf('\n');
    if (end >= 0)
        sheet.readLines(end + 1);
    const ToDoLine::Outline next = ToDoLine::outline(sheet.m_next);
    sheet.setLastIds({std::max(next.id - 1, 0), std::max(next.list - 1, 0)});
    sheet.giveIds();
    sheet.findLost();
    return sheet;
}

QByteArray ToDoSheet::toFile(QByteArrayView digest, QByteArrayView formerDigest) const
{
    const QByteArray active = ToDoLine::makeActive(digest, formerDigest, m_active);
    const QByteArray next = nextIds();
    qsizetype size = ToDoHead::firstLine.size() + active.size() + next.size() + 3 * lineEnd.size();
    for (const Line &line : m_lines)
        size += line.length + lineEnd.size();
    QByteArray file;
    file.reserve(size);
    file.append(ToDoHead::firstLine).append(lineEnd).append(active).append(lineEnd);
    if (!next.isEmpty())
        file.append(next).append(lineEnd);
    for (const Line &line : m_lines)
        file.append(bytes(line)).append(lineEnd);
    return file;
}

std::pair<QByteArray, QByteArray> ToDoSheet::digests() const
{
    return {ToDoLine::column(m_active, 1).toByteArray(), ToDoLine::column(m_active, 2).toByteArray()};
}

const ToDoList *ToDoSheet::list(int id) const
{
    const auto list = std::ranges::find(m_lists, id, &ToDoList::id);
    return list == m_lists.end() ? nullptr : &*list;
}

int ToDoSheet::rowOf(int id) const
{
    const auto row =
        std::ranges::find_if(m_rows, [this, id](qint32 line) { return m_lines[line].outline.id == id; });
    return row == m_rows.end() ? -1 : int(row - m_rows.begin());
}

QByteArrayView ToDoSheet::textBytes(int row) const
{
    const Line &line = rowLine(row);
    const QByteArrayView rest = bytes(line).sliced(line.outline.textAt);
    const qsizetype end = rest.indexOf('\t');
    return rest.first(end < 0 ? rest.size() : end);
}

QByteArrayView ToDoSheet::noteBytes(int row) const
{
    const Line &line = rowLine(row);
    const QByteArrayView rest = bytes(line).sliced(line.outline.noteAt);
    const qsizetype end = rest.indexOf('\t');
    return rest.first(end < 0 ? rest.size() : end);
}

/// Two columns before the text.
QByteArrayView ToDoSheet::repeatBytes(int row) const
{
    const Line &line = rowLine(row);
    const QByteArrayView head = bytes(line).first(line.outline.textAt - 1);
    const qsizetype created = head.lastIndexOf('\t');
    const qsizetype repeat = head.lastIndexOf('\t', created - 1);
    return head.sliced(repeat + 1, created - repeat - 1);
}

int ToDoSheet::add(ToDoItem item, int before)
{
    if (item.id <= 0 || rowOf(item.id) >= 0)
        item.id = newItemId();
    const bool isLast = before < 0 || before >= rowCount();
    insertLine(isLast ? lineCount() : m_rows[before], ToDoLine::make(item));
    return item.id;
}

std::vector<int> ToDoSheet::addAll(std::vector<ToDoItem> items, int before)
{
    const bool isLast = before < 0 || before >= rowCount();
    int place = isLast ? lineCount() : m_rows[before];
    std::vector<int> ids;
    std::vector<std::pair<int, QByteArray>> lines;
    for (ToDoItem &item : items) {
        item.id = newItemId();
        m_lastItemId = std::max(m_lastItemId, item.id);
        ids.push_back(item.id);
        lines.emplace_back(place++, ToDoLine::make(item));
    }
    insertLines(lines);
    return ids;
}

void ToDoSheet::set(int row, const ToDoItem &item)
{
    const qint32 line = m_rows[row];
    const QByteArray made = ToDoLine::make(item, bytes(m_lines[line]));
    if (made != bytes(m_lines[line]))
        m_lines[line] = keep(made);
}

void ToDoSheet::removeRows(const std::vector<int> &rows)
{
    std::vector<int> lines;
    lines.reserve(rows.size());
    for (const int row : rows)
        lines.push_back(m_rows[row]);
    removeLines(lines);
}

void ToDoSheet::move(const std::vector<int> &rows, int before)
{
    const int end = before < 0 || before > rowCount() ? rowCount() : before;
    std::vector<bool> isMoved(std::size_t(rowCount()), false);
    for (const int row : rows)
        isMoved[std::size_t(row)] = true;
    QList<Line> lines;
    lines.reserve(rowCount());
    const auto take = [&](int from, int to, bool moved) {
        for (int row = from; row < to; ++row) {
            if (isMoved[std::size_t(row)] == moved)
                lines.append(rowLine(row));
        }
    };
    take(0, end, false);
    take(0, rowCount(), true);
    take(end, rowCount(), false);
    for (int row = 0; row < rowCount(); ++row)
        m_lines[m_rows[row]] = lines[row];
}

int ToDoSheet::addList(ToDoList list, int place)
{
    if (list.id <= 0 || this->list(list.id) != nullptr)
        list.id = newListId();
    const auto count = int(m_listLines.size());
    int line = 0;
    if (place >= 0 && place < count)
        line = m_listLines[std::size_t(place)];
    else if (count > 0)
        line = m_listLines.back() + 1;
    insertLine(line, ToDoLine::make(list));
    return list.id;
}

void ToDoSheet::setList(const ToDoList &list)
{
    for (std::size_t i = 0; i < m_lists.size(); ++i) {
        if (m_lists[i].id != list.id)
            continue;
        m_lines[m_listLines[i]] = keep(ToDoLine::make(list, bytes(m_lines[m_listLines[i]])));
        m_lists[i] = list;
    }
}

void ToDoSheet::removeList(int id)
{
    std::vector<int> lines;
    for (int line = 0; line < lineCount(); ++line) {
        const ToDoLine::Outline &outline = m_lines[line].outline;
        if ((outline.kind == ToDoLine::Kind::List && outline.id == id) ||
            (outline.kind == ToDoLine::Kind::Item && outline.list == id))
            lines.push_back(line);
    }
    removeLines(lines);
}

void ToDoSheet::moveList(int id, int place)
{
    const auto list = std::ranges::find(m_lists, id, &ToDoList::id);
    if (list == m_lists.end())
        return;
    const auto from = int(list - m_lists.begin());
    const int to = std::clamp(place, 0, int(m_lists.size()) - 1);
    QList<Line> lines;
    for (const qint32 line : m_listLines)
        lines.append(m_lines[line]);
    lines.move(from, to);
    for (std::size_t i = 0; i < m_listLines.size(); ++i)
        m_lines[m_listLines[i]] = lines[qsizetype(i)];
    index();
}

void ToDoSheet::insertLine(int line, QByteArrayView bytes)
{
    m_lines.insert(line, keep(bytes));
    index();
}

void ToDoSheet::removeLine(int line)
{
    m_lines.removeAt(line);
    index();
}

void ToDoSheet::removeLines(const std::vector<int> &lines)
{
    auto next = lines.begin();
    QList<Line> kept;
    kept.reserve(m_lines.size());
    for (int line = 0; line < lineCount(); ++line) {
        if (next != lines.end() && *next == line)
            ++next;
        else
            kept.append(m_lines[line]);
    }
    m_lines = kept;
    index();
}

void ToDoSheet::insertLines(const std::vector<std::pair<int, QByteArray>> &lines)
{
    QList<Line> merged;
    merged.reserve(m_lines.size() + qsizetype(lines.size()));
    auto former = m_lines.cbegin();
    for (const auto &[place, text] : lines) {
        while (merged.size() < place && former != m_lines.cend())
            merged.append(*former++);
        merged.append(keep(text));
    }
    while (former != m_lines.cend())
        merged.append(*former++);
    m_lines = merged;
    index();
}

bool ToDoSheet::operator==(const ToDoSheet &other) const
{
    return std::ranges::equal(m_lines, other.m_lines, [this, &other](const Line &one, const Line &two) {
        return bytes(one) == other.bytes(two);
    });
}

ToDoSheet::Line ToDoSheet::keep(QByteArrayView bytes)
{
    const Line line{qint32(m_bytes.size()), qint32(bytes.size()), ToDoLine::outline(bytes)};
    m_bytes.append(bytes);
    return line;
}

void ToDoSheet::readLines(qsizetype from)
{
    const QByteArrayView all(m_bytes);
    m_lines.reserve(all.count('\n') + 1);
    while (from < all.size()) {
        const qsizetype end = all.indexOf('\n', from);
        const qsizetype next = end < 0 ? all.size() : end + 1;
        const QByteArrayView line = TabLine::lineOf(all.sliced(from, next - from));
        const Line read{qint32(from), qint32(line.size()), ToDoLine::outline(line)};
        if (read.outline.kind == ToDoLine::Kind::Active && m_active.isEmpty())
            m_active = line.toByteArray();
        else if (read.outline.kind == ToDoLine::Kind::Next && m_next.isEmpty())
            m_next = line.toByteArray();
        else
            m_lines.append(read);
        from = next;
    }
}

int ToDoSheet::newItemId() const
{
    return newId(m_lastItemId, [this](int id) { return rowOf(id) < 0; });
}

int ToDoSheet::newListId() const
{
    return newId(m_lastListId, [this](int id) { return list(id) == nullptr; });
}

/// Empty where the lines say it all.
QByteArray ToDoSheet::nextIds() const
{
    ToDoSheet lines = *this;
    lines.setLastIds({});
    if (lines.lastIds() == lastIds())
        return {};
    return ToDoLine::makeNext(std::min(m_lastItemId + 1, ToDoLine::lastId),
                              std::min(m_lastListId + 1, ToDoLine::lastId), m_next);
}

/// Finds the items and lists among the lines anew.
void ToDoSheet::index()
{
    m_rows.clear();
    m_rows.reserve(m_lines.size());
    m_lists.clear();
    m_listLines.clear();
    for (qint32 line = 0; line < m_lines.size(); ++line) {
        const ToDoLine::Outline &outline = m_lines.at(line).outline;
        if (outline.kind == ToDoLine::Kind::Item) {
            m_rows.append(line);
            m_lastItemId = std::max(m_lastItemId, outline.id);
        } else if (outline.kind == ToDoLine::Kind::List) {
            m_lists.push_back(ToDoLine::list(bytes(m_lines.at(line))));
            m_listLines.push_back(line);
            m_lastListId = std::max(m_lastListId, outline.id);
        }
    }
}

/// Gives an id of its own to what has that of another above it.
void ToDoSheet::giveIds()
{
    QSet<int> items;
    QSet<int> lists;
    items.reserve(m_rows.size());
    const auto isTwin = [](QSet<int> &ids, int id) {
        const qsizetype before = ids.size();
        ids.insert(id);
        return ids.size() == before;
    };
    for (const qint32 line : m_rows) {
        const QByteArrayView former = bytes(m_lines.at(line));
        if (!isTwin(items, m_lines.at(line).outline.id))
            continue;
        ToDoItem item = ToDoLine::item(former);
        item.id = newItemId();
        m_lastItemId = std::max(m_lastItemId, item.id);
        m_lines[line] = keep(ToDoLine::make(item, former));
    }
    for (std::size_t i = 0; i < m_lists.size(); ++i) {
        if (!isTwin(lists, m_lists[i].id))
            continue;
        m_lists[i].id = newListId();
        m_lastListId = std::max(m_lastListId, m_lists[i].id);
        const qint32 line = m_listLines[i];
        m_lines[line] = keep(ToDoLine::make(m_lists[i], bytes(m_lines.at(line))));
    }
}

/// Puts the items of lists that are not there into a list of their own.
void ToDoSheet::findLost()
{
    QSet<int> known;
    for (const ToDoList &list : m_lists)
        known.insert(list.id);
    std::vector<int> lost;
    for (int row = 0; row < rowCount(); ++row) {
        if (!known.contains(listOf(row)))
            lost.push_back(idOf(row));
    }
    if (lost.empty())
        return;
    const auto former = std::ranges::find(m_lists, ToDoLines::found(), &ToDoList::name);
    const int found =
        former != m_lists.end() ? former->id : addList({0, ListKind::Plain, ToDoLines::found()});
    for (int row = 0; row < rowCount(); ++row) {
        if (known.contains(listOf(row)) || listOf(row) == found)
            continue;
        ToDoItem item = this->item(row);
        item.list = found;
        set(row, item);
    }
}
