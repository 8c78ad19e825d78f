// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

/// Files of lines in UTF-8 whose columns are parted by tabs, the first of which says what the file is. In a
/// text column, tabs, line ends and backslashes are written as `\t`, `\n` and `\\`.
namespace TabLine {

/// What a file is by its first line.
enum Form {
    Empty, ///< nothing, or only the beginning of that line
    Known,
    Later,  ///< of a later version of the program
    Foreign ///< anything else
};

inline constexpr QByteArrayView lineEnd = "\r\n";

/// What `file` is where ours begin with `firstLine`, whose last word is the version: "Quillery To Do 1". A
/// byte order mark in front does not count.
Form formOf(QByteArrayView file, QByteArrayView firstLine);

/// The line that `text` begins with, without its line end.
QByteArrayView lineOf(QByteArrayView text);

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
    /// Nothing behind the last one.
    QByteArrayView take();

private:
    QByteArrayView m_rest;
    qsizetype m_size;
    bool m_isAtEnd = false;
};

/// -1 where `column` is no number of nine digits at most.
int number(QByteArrayView column);

/// The Julian day of "2026-11-24"; 0 for anything else.
qint32 julianDay(QByteArrayView column);
/// The same as a date; invalid for anything else.
QDate date(QByteArrayView column);

/// The text of a column; bytes that are no UTF-8 count as Windows-1252.
QString text(QByteArrayView column);
/// The column of a text.
QByteArray column(const QString &text);
/// That of a date; empty for an invalid one.
QByteArray column(QDate date);

} // namespace TabLine
