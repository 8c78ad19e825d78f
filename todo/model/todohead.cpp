// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todohead.h"

namespace {

constexpr QByteArrayView firstWords = "Quillery To Do ";
constexpr QByteArrayView byteOrderMark = "\xef\xbb\xbf";

} // namespace

ToDoHead::Form ToDoHead::formOf(QByteArrayView file)
{
    if (file.startsWith(byteOrderMark))
        file = file.sliced(byteOrderMark.size());
    if (firstLine.startsWith(file))
        return Empty;
    const QByteArrayView line = lineOf(file);
    if (line == firstLine)
        return Known;
    return line.startsWith(firstWords) && line.size() > firstWords.size() ? Later : Foreign;
}

QByteArrayView ToDoHead::lineOf(QByteArrayView text)
{
    const qsizetype end = text.indexOf('\n');
    QByteArrayView line = text.first(end < 0 ? text.size() : end);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}
