// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/sheetrange.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

const QStringList &SheetColumn::headings()
{
    static const QStringList headings{u"Item"_s, u"Jan"_s, u"Feb"_s, u"Mar"_s, u"Apr"_s, u"May"_s, u"Jun"_s,
                                      u"Jul"_s,  u"Aug"_s, u"Sep"_s, u"Oct"_s, u"Nov"_s, u"Dec"_s};
    return headings;
}

SheetRange SheetRange::ofDifference(const BudgetSheet &one, const BudgetSheet &other)
{
    SheetRange range{int(BudgetSheet::rowCount), SheetColumn::count, -1, -1};
    for (int row = 0; row < int(BudgetSheet::rowCount); ++row) {
        for (int column = 0; column < SheetColumn::count; ++column) {
            if (cellText(one, row, column) == cellText(other, row, column))
                continue;
            range = {std::min(range.top, row), std::min(range.left, column), std::max(range.bottom, row),
                     std::max(range.right, column)};
        }
    }
    return range;
}

QString &cellText(BudgetSheet &sheet, int row, int column)
{
    BudgetSheet::Row &of = sheet.rows[std::size_t(row)];
    return column == SheetColumn::item ? of.item : of.amounts[std::size_t(column - SheetColumn::firstMonth)];
}

const QString &cellText(const BudgetSheet &sheet, int row, int column)
{
    const BudgetSheet::Row &of = sheet.rows[std::size_t(row)];
    return column == SheetColumn::item ? of.item : of.amounts[std::size_t(column - SheetColumn::firstMonth)];
}

QString inOneLine(QString text)
{
    std::ranges::replace_if(
        text, [](QChar character) { return character < u' ' || character == QChar(0x7f); }, u' ');
    return text;
}
