// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weighttable.h"

#include "storage/ansitext.h"
#include "weight/model/weightdates.h"
#include "weight/model/weightnumbers.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

constexpr qsizetype likelyLength = 10; ///< of a text

} // namespace

QString WeightTable::date(qsizetype row) const
{
    return AnsiText::decode(dateBytes(row));
}

QString WeightTable::weight(qsizetype row) const
{
    return AnsiText::decode(weightBytes(row));
}

std::optional<float> WeightTable::number(qsizetype row) const
{
    const float weight = m_rows[row].weight;
    return weight > 0 ? std::optional(weight) : std::nullopt;
}

void WeightTable::insert(qsizetype row, const WeighIn &weighIn)
{
    Row made;
    readDate(made, AnsiText::encode(weighIn.date));
    readWeight(made, AnsiText::encode(weighIn.weight));
    m_rows.insert(row, made);
}

void WeightTable::insert(qsizetype row, const WeightTable &rows)
{
    for (const Row &other : rows.m_rows) {
        Row made = other;
        made.dateText = keep(rows.bytes(other.dateText));
        made.weightText = keep(rows.bytes(other.weightText));
        m_rows.insert(row++, made);
    }
}

void WeightTable::setDate(qsizetype row, const QString &text)
{
    readDate(m_rows[row], AnsiText::encode(text));
}

void WeightTable::setWeight(qsizetype row, const QString &text)
{
    readWeight(m_rows[row], AnsiText::encode(text));
}

std::vector<qsizetype> WeightTable::order(Column column, Qt::SortOrder order) const
{
    std::vector<qsizetype> rows(m_rows.size());
    std::iota(rows.begin(), rows.end(), 0);
    const bool isUp = order == Qt::AscendingOrder;
    const auto sortBy = [&](auto has, auto value) {
        std::ranges::stable_sort(rows, [&](qsizetype one, qsizetype other) {
            const Row &left = m_rows[one];
            const Row &right = m_rows[other];
            if (!has(left) || !has(right))
                return has(left) && !has(right);
            return isUp ? value(left) < value(right) : value(right) < value(left);
        });
    };
    if (column == Column::Date)
        sortBy([](const Row &row) { return QDate::fromJulianDay(row.day).isValid(); },
               [](const Row &row) { return row.day; });
    else
        sortBy([](const Row &row) { return row.weight > 0; }, [](const Row &row) { return row.weight; });
    return rows;
}

void WeightTable::sort(Column column, Qt::SortOrder order)
{
    QList<Row> sorted;
    sorted.reserve(m_rows.size());
    for (const qsizetype row : this->order(column, order))
        sorted.append(m_rows[row]);
    m_rows = sorted;
}

void WeightTable::append(QByteArrayView date, QByteArrayView weight)
{
    Row made;
    readDate(made, date);
    readWeight(made, weight);
    m_rows.append(made);
}

void WeightTable::reserve(qsizetype rows)
{
    m_rows.reserve(rows);
    m_text.reserve(rows * 2 * likelyLength);
}

bool WeightTable::operator==(const WeightTable &other) const
{
    if (rowCount() != other.rowCount())
        return false;
    for (qsizetype row = 0; row < rowCount(); ++row) {
        if (dateBytes(row) != other.dateBytes(row) || weightBytes(row) != other.weightBytes(row))
            return false;
    }
    return true;
}

WeightTable::Span WeightTable::keep(QByteArrayView text)
{
    const Span span{qint32(m_text.size()), qint32(text.size())};
    m_text.append(text);
    return span;
}

/// Zero bytes are what a crash leaves in place of text.
QByteArrayView WeightTable::stored(QByteArrayView text, QByteArray &room)
{
    if (text.contains('\0')) {
        room = text.toByteArray();
        room.removeIf([](char byte) { return byte == '\0'; });
        text = room;
    }
    return text.trimmed();
}

void WeightTable::readDate(Row &row, QByteArrayView text)
{
    QByteArray room;
    text = stored(text, room);
    row.dateText = keep(text);
    row.day = WeightDates::date(text).toJulianDay();
}

void WeightTable::readWeight(Row &row, QByteArrayView text)
{
    QByteArray room;
    text = stored(text, room);
    row.weightText = keep(text);
    row.weight = WeightNumbers::number(text).value_or(0);
}
