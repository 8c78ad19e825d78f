// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/tabline.h"

#include "storage/utf8text.h"

#include <algorithm>

namespace {

constexpr QByteArrayView byteOrderMark = "\xef\xbb\xbf";
constexpr qsizetype mostDigits = 9;
constexpr qsizetype dateLength = 10;

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

QString decoded(QByteArrayView bytes)
{
    return QUtf8StringView(bytes).isValidUtf8() ? QString::fromUtf8(bytes) : Utf8Text::decode(bytes);
}

} // namespace

TabLine::Form TabLine::formOf(QByteArrayView file, QByteArrayView firstLine)
{
    if (file.startsWith(byteOrderMark))
        file = file.sliced(byteOrderMark.size());
    if (firstLine.startsWith(file))
        return Empty;
    const QByteArrayView line = lineOf(file);
    if (line == firstLine)
        return Known;
    const QByteArrayView words = firstLine.first(firstLine.lastIndexOf(' ') + 1);
    return line.startsWith(words) && line.size() > words.size() ? Later : Foreign;
}

QByteArrayView TabLine::lineOf(QByteArrayView text)
{
    const qsizetype end = text.indexOf('\n');
    QByteArrayView line = text.first(end < 0 ? text.size() : end);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}

QByteArrayView TabLine::Columns::take()
{
    if (m_isAtEnd)
        return {};
    const qsizetype end = m_rest.indexOf('\t');
    const QByteArrayView column = m_rest.first(end < 0 ? m_rest.size() : end);
    m_isAtEnd = end < 0;
    m_rest = m_rest.sliced(column.size() + (m_isAtEnd ? 0 : 1));
    return column;
}

int TabLine::number(QByteArrayView column)
{
    if (column.isEmpty() || column.size() > mostDigits || !std::ranges::all_of(column, isDigit))
        return -1;
    int value = 0;
    for (const char digit : column)
        value = 10 * value + (digit - '0');
    return value;
}

qint32 TabLine::julianDay(QByteArrayView column)
{
    const QDate day = date(column);
    return day.isValid() ? qint32(day.toJulianDay()) : 0;
}

QDate TabLine::date(QByteArrayView column)
{
    if (column.size() != dateLength || column[4] != '-' || column[7] != '-')
        return {};
    const int year = number(column.first(4));
    return year < 1 ? QDate() : QDate(year, number(column.sliced(5, 2)), number(column.sliced(8, 2)));
}

QString TabLine::text(QByteArrayView column)
{
    if (!column.contains('\\'))
        return decoded(column);
    QByteArray plain;
    plain.reserve(column.size());
    for (qsizetype i = 0; i < column.size(); ++i) {
        const char next = column[i] == '\\' && i + 1 < column.size() ? column[i + 1] : 0;
        const char meant = next == 't' ? '\t' : next == 'n' ? '\n' : next == '\\' ? '\\' : 0;
        plain += meant == 0 ? column[i] : meant;
        i += meant == 0 ? 0 : 1;
    }
    return decoded(plain);
}

QByteArray TabLine::column(const QString &text)
{
    QByteArray column = text.toUtf8();
    column.replace('\\', "\\\\").replace("\r\n", "\\n").replace('\r', "\\n").replace('\n', "\\n");
    return column.replace('\t', "\\t");
}

QByteArray TabLine::column(QDate date)
{
    return date.isValid() ? date.toString(Qt::ISODate).toLatin1() : QByteArray();
}
