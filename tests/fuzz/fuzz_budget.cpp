// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/amount.h"
#include "budget/model/budgetentry.h"
#include "budget/model/budgetfiles.h"
#include "budget/model/sheetlines.h"
#include "fuzztarget.h"

#include <cmath>

namespace {

void tryAmount(const QString &text)
{
    for (const double amount : {Amount::leading(text), Amount::stored(text), Amount::typed(text)})
        require(std::isfinite(amount), "an amount is a number");
    const QString cell = BudgetEntry::ofCell(text).text;
    require(BudgetEntry::ofCell(cell).text == cell, "an amount that was taken is taken again");
    require(Amount::stored(cell) <= Amount::mostInCell, "a cell holds no more than it may");
}

void tryFigures(const BudgetSheet &sheet)
{
    const BudgetFigures figures = BudgetFigures::of(sheet);
    for (const BudgetFigures::Month &month : figures.months)
        require(month.income >= 0, "no income is below 0");
    for (const BudgetFigures::Item &item : BudgetFigures::items(sheet))
        require(item.row < BudgetSheet::rowCount, "an item has a row");
}

/// Whatever stands in a cell, it stays there.
void tryTexts(const BudgetSheet &sheet)
{
    qsizetype rows = 0;
    for (const BudgetSheet::Row &row : sheet.rows)
        rows += row.isEmpty() ? 0 : 1;
    const QByteArray file = SheetLines::exportText(sheet);
    require(file.count("\r\n") == rows + 1 && file.count('\n') == rows + 1, "a row is a line");
    require(file.count('\t') == (rows + 1) * 12, "a row has its cells");
    require(SheetLines::clipboardText(2026, sheet).count(u'\n') == rows + 5, "the clipboard has all lines");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const BudgetFiles::Found found = BudgetFiles::decode(asBytes(data, size));
    require(found.values <= int(size), "no value comes from nothing");
    for (const BudgetSheet::Row &row : found.sheet.rows) {
        for (const QString &amount : row.amounts)
            tryAmount(amount);
    }
    tryFigures(found.sheet);
    tryTexts(found.sheet);

    const QByteArray written = BudgetFiles::encode(found.sheet);
    const BudgetFiles::Found again = BudgetFiles::decode(written);
    require(again.values == BudgetFiles::valueCount, "a file holds all values");
    require(BudgetFiles::encode(again.sheet) == written, "a budget comes back");
    return 0;
}
