// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todoline.h"

#include <algorithm>
#include <array>

namespace {

using ToDoLine::Kind;

enum ListColumn { ListWord, ListId, ListKindWord, ListName, ListColumnCount };
enum ItemColumn {
    ItemWord,
    ItemId,
    ItemList,
    Level,
    Due,
    Actual,
    Who,
    RepeatRule,
    Created,
    Text,
    Note,
    ItemColumnCount
};

constexpr QByteArrayView listWord = "list";
constexpr QByteArrayView itemWord = "item";
constexpr QByteArrayView activeWord = "active";
constexpr QByteArrayView nextWord = "next";

constexpr qsizetype mostDigits = 9;
constexpr qsizetype dateLength = 10;

/// Takes columns off a line from the left.
class Columns
{
public:
    explicit Columns(QByteArrayView line)
        : m_rest(line)
        , m_size(line.size())
    {}

    bool isAtEnd() const { return m_isAtEnd; }
    /// Where the next column begins.
    qsizetype at() const { return m_isAtEnd ? m_size : m_size - m_rest.size(); }

    QByteArrayView take()
    {
        if (m_isAtEnd)
            return {};
        const qsizetype end = m_rest.indexOf('\t');
        const QByteArrayView column = m_rest.first(end < 0 ? m_rest.size() : end);
        m_isAtEnd = end < 0;
        m_rest = m_rest.sliced(column.size() + (m_isAtEnd ? 0 : 1));
        return column;
    }

private:
    QByteArrayView m_rest;
    qsizetype m_size;
    bool m_isAtEnd = false;
};

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// -1 where `digits` are no number of nine digits at most.
int number(QByteArrayView digits)
{
    if (digits.isEmpty() || digits.size() > mostDigits || !std::ranges::all_of(digits, isDigit))
        return -1;
    int value = 0;
    for (const char digit : digits)
        value = 10 * value + (digit - '0');
    return value;
}

/// The Julian day of "2026-11-24"; 0 for anything else.
qint32 julianDay(QByteArrayView column)
{
    if (column.size() != dateLength || column[4] != '-' || column[7] != '-')
        return 0;
    const int year = number(column.first(4));
    if (year < 1)
        return 0;
    const QDate date(year, number(column.sliced(5, 2)), number(column.sliced(8, 2)));
    return date.isValid() ? qint32(date.toJulianDay()) : 0;
}

QDate date(QByteArrayView column)
{
    const qint32 day = julianDay(column);
    return day > 0 ? QDate::fromJulianDay(day) : QDate();
}

QByteArray dateColumn(QDate date)
{
    return date.isValid() ? date.toString(Qt::ISODate).toLatin1() : QByteArray();
}

/// The days of "+3" or "-7".
std::optional<int> offset(QByteArrayView column)
{
    if (column.isEmpty() || (column[0] != '+' && column[0] != '-'))
        return {};
    const int days = number(column.sliced(1));
    if (days < 0)
        return {};
    return column[0] == '-' ? -days : days;
}

std::optional<ItemLevel> level(QByteArrayView column)
{
    if (column == QByteArrayView("0"))
        return ItemLevel::Item;
    if (column == QByteArrayView("1"))
        return ItemLevel::Step;
    if (column == QByteArrayView("h"))
        return ItemLevel::Heading;
    return {};
}

QByteArray levelColumn(ItemLevel level)
{
    return level == ItemLevel::Item ? "0" : level == ItemLevel::Step ? "1" : "h";
}

ListKind listKind(QByteArrayView column)
{
    if (column == QByteArrayView("shopping"))
        return ListKind::Shopping;
    return column == QByteArrayView("template") ? ListKind::Template : ListKind::Plain;
}

QByteArray kindColumn(ListKind kind)
{
    return kind == ListKind::Shopping ? "shopping" : kind == ListKind::Template ? "template" : "plain";
}

QByteArray textColumn(const QString &text)
{
    QByteArray column = text.toUtf8();
    column.replace('\\', "\\\\").replace("\r\n", "\\n").replace('\r', "\\n").replace('\n', "\\n");
    return column.replace('\t', "\\t");
}

std::array<QByteArray, ListColumnCount> columnsOf(const ToDoList &list)
{
    return {listWord.toByteArray(), QByteArray::number(list.id), kindColumn(list.kind),
            textColumn(list.name)};
}

std::array<QByteArray, ItemColumnCount> columnsOf(const ToDoItem &item)
{
    QByteArray due = dateColumn(item.due);
    if (item.offset)
        due = (*item.offset < 0 ? "-" : "+") + QByteArray::number(qAbs(*item.offset));
    return {itemWord.toByteArray(),
            QByteArray::number(item.id),
            QByteArray::number(item.list),
            levelColumn(item.level),
            due,
            dateColumn(item.actual),
            textColumn(item.who),
            textColumn(item.repeat),
            dateColumn(item.created),
            textColumn(item.text),
            textColumn(item.note)};
}

/// The columns that are wanted, each with its former bytes where those say the same, and those beyond.
template <std::size_t count>
QByteArray joined(const std::array<QByteArray, count> &wanted, const std::array<QByteArray, count> &held,
                  QByteArrayView former)
{
    QByteArray line;
    Columns columns(former);
    for (std::size_t i = 0; i < count; ++i) {
        const bool isThere = !former.isEmpty() && !columns.isAtEnd();
        const QByteArrayView kept = columns.take();
        line.append(i == 0 ? "" : "\t").append(isThere && wanted[i] == held[i] ? kept : wanted[i]);
    }
    while (!former.isEmpty() && !columns.isAtEnd())
        line.append('\t').append(columns.take());
    return line;
}

void outlineItem(ToDoLine::Outline &outline, Columns &columns)
{
    outline.id = number(columns.take());
    outline.list = number(columns.take());
    const std::optional<ItemLevel> itemLevel = level(columns.take());
    outline.due = julianDay(columns.take());
    outline.actual = julianDay(columns.take());
    for (int skipped = Who; skipped < Text; ++skipped)
        columns.take();
    if (outline.id < 1 || outline.list < 0 || !itemLevel || columns.isAtEnd())
        return;
    outline.level = *itemLevel;
    outline.textAt = quint16(columns.at());
    columns.take();
    outline.noteAt = quint16(columns.at());
    outline.kind = Kind::Item;
}

} // namespace

ToDoLine::Outline ToDoLine::outline(QByteArrayView line)
{
    Outline outline;
    if (line.size() > longest)
        return outline;
    Columns columns(line);
    const QByteArrayView word = columns.take();
    if (word == itemWord) {
        outlineItem(outline, columns);
    } else if (word == listWord) {
        outline.id = number(columns.take());
        columns.take();
        if (outline.id > 0 && !columns.isAtEnd())
            outline.kind = Kind::List;
    } else if (word == activeWord && !columns.isAtEnd()) {
        outline.kind = Kind::Active;
    } else if (word == nextWord) {
        outline.id = number(columns.take());
        outline.list = number(columns.take());
        if (outline.id > 0 && outline.list > 0)
            outline.kind = Kind::Next;
    }
    return outline;
}

QByteArrayView ToDoLine::column(QByteArrayView line, int number)
{
    Columns columns(line);
    for (; number > 0; --number)
        columns.take();
    return columns.take();
}

QString ToDoLine::text(QByteArrayView column)
{
    if (!column.contains('\\'))
        return QString::fromUtf8(column);
    QByteArray plain;
    plain.reserve(column.size());
    for (qsizetype i = 0; i < column.size(); ++i) {
        const char next = column[i] == '\\' && i + 1 < column.size() ? column[i + 1] : 0;
        const char meant = next == 't' ? '\t' : next == 'n' ? '\n' : next == '\\' ? '\\' : 0;
        plain += meant == 0 ? column[i] : meant;
        i += meant == 0 ? 0 : 1;
    }
    return QString::fromUtf8(plain);
}

ToDoList ToDoLine::list(QByteArrayView line)
{
    return {number(column(line, ListId)), listKind(column(line, ListKindWord)), text(column(line, ListName))};
}

ToDoItem ToDoLine::item(QByteArrayView line)
{
    Columns columns(line);
    columns.take();
    ToDoItem item;
    item.id = number(columns.take());
    item.list = number(columns.take());
    item.level = level(columns.take()).value_or(ItemLevel::Item);
    const QByteArrayView due = columns.take();
    item.due = date(due);
    item.offset = offset(due);
    item.actual = date(columns.take());
    item.who = text(columns.take());
    item.repeat = text(columns.take());
    item.created = date(columns.take());
    item.text = text(columns.take());
    item.note = text(columns.take());
    return item;
}

QByteArray ToDoLine::make(const ToDoList &list, QByteArrayView former)
{
    return joined(columnsOf(list), columnsOf(ToDoLine::list(former)), former);
}

QByteArray ToDoLine::make(const ToDoItem &item, QByteArrayView former)
{
    return joined(columnsOf(item), columnsOf(ToDoLine::item(former)), former);
}

QByteArray ToDoLine::makeActive(QByteArrayView digest, QByteArrayView formerDigest, QByteArrayView former)
{
    return joined<3>({activeWord.toByteArray(), digest.toByteArray(), formerDigest.toByteArray()}, {},
                     former);
}

QByteArray ToDoLine::makeNext(int item, int list, QByteArrayView former)
{
    return joined<3>({nextWord.toByteArray(), QByteArray::number(item), QByteArray::number(list)}, {},
                     former);
}
