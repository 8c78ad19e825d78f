// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <QtEndian>

#include <algorithm>

/// The fields of the album's records: whole numbers with the low byte first, texts in UTF-8 with zeros behind
/// them.
namespace RecordBytes {

/// What a record begins with that is free to be used again; one of zeros was never used.
inline constexpr QByteArrayView deleted("****");
inline constexpr qsizetype markLength = 4;

inline bool isNeverUsed(QByteArrayView record)
{
    const QByteArrayView mark = record.first(std::min(record.size(), markLength));
    return std::ranges::all_of(mark, [](char byte) { return byte == '\0'; });
}

/// The number at `at`; a record that ends before it has zeros there.
template <typename Number>
Number number(QByteArrayView record, qsizetype at)
{
    if (at + qsizetype(sizeof(Number)) > record.size())
        return 0;
    return qFromLittleEndian<Number>(record.data() + at);
}

template <typename Number>
void put(QByteArray &record, qsizetype at, Number value)
{
    qToLittleEndian(value, record.data() + at);
}

/// The bytes of the text field at `at`, up to the first zero.
QByteArrayView textBytes(QByteArrayView record, qsizetype at, qsizetype width);
QString text(QByteArrayView record, qsizetype at, qsizetype width);
/// Writes the text; where it is too long, as many characters as have room.
void putText(QByteArray &record, qsizetype at, qsizetype width, const QString &text);

} // namespace RecordBytes
