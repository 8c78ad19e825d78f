// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/model/weighin.h"

#include <QByteArray>
#include <QDate>
#include <QList>

#include <optional>
#include <vector>

/// The weigh-ins of a person in the order of their file, 10,000 as quickly as ten: their texts stay bytes,
/// and the numbers are read from those once.
class WeightTable
{
public:
    enum class Column { Date, Weight };

    qsizetype rowCount() const { return m_rows.size(); }
    bool isEmpty() const { return m_rows.isEmpty(); }

    /// The texts of a row as they are stored.
    QString date(qsizetype row) const;
    QString weight(qsizetype row) const;
    WeighIn at(qsizetype row) const { return {date(row), weight(row)}; }

    /// The day of a row; invalid where its text is no date.
    QDate day(qsizetype row) const { return QDate::fromJulianDay(m_rows[row].day); }
    /// The weight of a row; nothing where its text is none.
    std::optional<float> number(qsizetype row) const;

    /// Texts are kept without blanks around them, without what no file can hold.
    void append(const WeighIn &weighIn) { insert(rowCount(), weighIn); }
    void insert(qsizetype row, const WeighIn &weighIn);
    void insert(qsizetype row, const WeightTable &rows);
    void remove(qsizetype row) { m_rows.removeAt(row); }
    void setDate(qsizetype row, const QString &text);
    void setWeight(qsizetype row, const QString &text);

    /// The rows as they would be sorted. Those with equal values keep their order; those without one come
    /// last, whichever the order.
    std::vector<qsizetype> order(Column column, Qt::SortOrder order) const;
    void sort(Column column, Qt::SortOrder order);

    /// For a file: adds a row of these bytes, and gives the bytes of a row.
    void append(QByteArrayView date, QByteArrayView weight);
    QByteArrayView dateBytes(qsizetype row) const { return bytes(m_rows[row].dateText); }
    QByteArrayView weightBytes(qsizetype row) const { return bytes(m_rows[row].weightText); }
    void reserve(qsizetype rows);

    bool operator==(const WeightTable &other) const;

private:
    /// A place in `m_text`.
    struct Span {
        qint32 at = 0;
        qint32 length = 0;
    };
    struct Row {
        Span dateText;
        Span weightText;
        qint64 day = 0;
        float weight = 0; ///< 0: none
    };

    static QByteArrayView stored(QByteArrayView text, QByteArray &room);
    Span keep(QByteArrayView text);
    void readDate(Row &row, QByteArrayView text);
    void readWeight(Row &row, QByteArrayView text);
    QByteArrayView bytes(Span span) const { return QByteArrayView(m_text).sliced(span.at, span.length); }

    QByteArray m_text; ///< only grows: a text that was typed over stays behind
    QList<Row> m_rows;
};
