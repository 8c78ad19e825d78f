// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/gridtext.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool endsCell(QChar character)
{
    return character == u'\t' || character == u'\n' || character == u'\r';
}

QString encodedCell(const QString &cell)
{
    if (!std::ranges::any_of(cell, endsCell))
        return cell;
    return u'"' + QString(cell).replace(u'"', "\"\""_L1) + u'"';
}

/// The cell that `rest` begins with, which is taken from it.
QString takeCell(QStringView &rest)
{
    const auto takeTo = [&rest](qsizetype end) {
        const QStringView cell = rest.first(end);
        rest = rest.sliced(end);
        return cell.toString();
    };
    if (rest.startsWith(u'"')) {
        qsizetype end = 1;
        while (end < rest.size() && (rest[end] != u'"' || rest.sliced(end).startsWith("\"\""_L1)))
            end += rest[end] == u'"' ? 2 : 1;
        // Quotes that are closed elsewhere than at the end of the cell belong to its text.
        if (end < rest.size() && (end + 1 == rest.size() || endsCell(rest[end + 1]))) {
            const QString quoted = takeTo(end + 1);
            const QString inside = quoted.sliced(1, quoted.size() - 2);
            return std::ranges::any_of(inside, endsCell) ? QString(inside).replace("\"\""_L1, "\""_L1)
                                                         : quoted;
        }
    }
    const auto end = std::ranges::find_if(rest, endsCell) - rest.begin();
    return takeTo(end);
}

} // namespace

QString GridText::encode(const Rows &rows)
{
    QString text;
    for (const QStringList &row : rows) {
        QStringList cells;
        for (const QString &cell : row)
            cells << encodedCell(cell);
        text += cells.join(u'\t') + u'\n';
    }
    return text;
}

GridText::Rows GridText::decode(QStringView text)
{
    Rows rows;
    while (!text.isEmpty()) {
        QStringList row{takeCell(text)};
        while (text.startsWith(u'\t')) {
            text = text.sliced(1);
            row << takeCell(text);
        }
        if (!text.isEmpty())
            text = text.sliced(text.startsWith("\r\n"_L1) ? 2 : 1);
        rows << row;
    }
    return rows;
}
