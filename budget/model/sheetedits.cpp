// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/sheetedits.h"

#include "budget/model/amount.h"
#include "budget/model/budgetentry.h"
#include "budget/model/messages.h"
#include "storage/ansitext.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowCount = int(BudgetSheet::rowCount);
constexpr int monthCount = int(BudgetSheet::monthCount);

/// How many cells of one direction are filled: `offered` of them, or as often as they fit into `chosen`.
int filled(int chosen, int offered)
{
    return chosen > offered && chosen % offered == 0 ? chosen : offered;
}

void pasteItem(QString &item, const QString &text, SheetEdits::Pasted &into)
{
    QString composed = text.normalized(QString::NormalizationForm_C);
    const QString foreign = AnsiText::foreignCharacters(composed);
    composed.removeIf([&](QChar character) { return foreign.contains(character); });
    for (const QChar character : foreign) {
        if (!into.foreign.contains(character))
            into.foreign += character;
    }
    item = composed;
}

/// Spreadsheets copy an amount of money as it is shown there: "$9.99".
QString withoutCurrency(const QString &text)
{
    const auto isBeside = [](QChar character) {
        return character.isSpace() || character.category() == QChar::Symbol_Currency;
    };
    const auto first = std::find_if_not(text.begin(), text.end(), isBeside);
    const auto end = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), isBeside).base();
    return QString(first, end - first);
}

void pasteAmount(QString &amount, const QString &pasted, SheetEdits::Pasted &into)
{
    const QString text = withoutCurrency(pasted);
    if (text.isEmpty()) {
        amount.clear();
        return;
    }
    const BudgetEntry entry = BudgetEntry::ofCell(text);
    amount = entry.text;
    if (entry.notice)
        ++(entry.text.isEmpty() ? into.noNumbers : into.limited);
    else if (BudgetEntry::isPartlyRead(text))
        ++into.partly;
}

/// The months of `range`; the whole year where it is no wider than one column.
std::pair<int, int> monthsOf(const SheetRange &range)
{
    if (range.width() == 1)
        return {SheetColumn::firstMonth, monthCount};
    return {std::max(range.left, SheetColumn::firstMonth), range.right};
}

} // namespace

std::optional<Message> SheetEdits::Pasted::notice() const
{
    if (noNumbers == 0 && limited == 0)
        return {};
    Message message = noNumbers > 0 ? BudgetMessages::onlyNumbers() : BudgetMessages::cellLimit();
    if (cells == 1)
        return message;
    if (noNumbers > 0)
        message.text +=
            u"\n%1 of %2 pasted cells held no number above 0 and are empty now."_s.arg(noNumbers).arg(cells);
    if (limited > 0)
        message.text +=
            u"\n%1 of %2 pasted cells held more than 9,999.99, which they hold now."_s.arg(limited).arg(
                cells);
    return message;
}

GridText::Rows SheetEdits::cells(const BudgetSheet &sheet, const SheetRange &range)
{
    GridText::Rows rows;
    for (int row = range.top; row <= range.bottom; ++row) {
        QStringList cells;
        for (int column = range.left; column <= range.right; ++column)
            cells << cellText(sheet, row, column);
        rows << cells;
    }
    return rows;
}

SheetEdits::Pasted SheetEdits::pasted(const BudgetSheet &sheet, const SheetRange &range,
                                      const GridText::Rows &cells)
{
    Pasted result;
    result.sheet = sheet;
    const int height = int(cells.size());
    int width = 0;
    for (const QStringList &row : cells)
        width = std::max(width, int(row.size()));
    if (width == 0 || range.isEmpty())
        return result;
    const int rows = filled(range.height(), height);
    const int columns = filled(range.width(), width);
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < columns; ++j) {
            if (range.top + i >= rowCount || range.left + j >= SheetColumn::count) {
                ++result.leftOut;
                continue;
            }
            const QString text = cells[i % height].value(j % width);
            QString &cell = cellText(result.sheet, range.top + i, range.left + j);
            ++result.cells;
            if (range.left + j == SheetColumn::item)
                pasteItem(cell, text, result);
            else
                pasteAmount(cell, text, result);
        }
    }
    result.range = {range.top, range.left, std::min(range.top + rows, rowCount) - 1,
                    std::min(range.left + columns, SheetColumn::count) - 1};
    return result;
}

void SheetEdits::clear(BudgetSheet &sheet, const SheetRange &range)
{
    for (int row = range.top; row <= range.bottom; ++row) {
        for (int column = range.left; column <= range.right; ++column)
            cellText(sheet, row, column).clear();
    }
}

void SheetEdits::repeatToTheRight(BudgetSheet &sheet, const SheetRange &range, int step)
{
    const int first = std::max(range.left, SheetColumn::firstMonth);
    const int last = range.right > first ? range.right : monthCount;
    for (int row = range.top; row <= range.bottom; ++row) {
        const QString amount = cellText(sheet, row, first);
        for (int column = first + step; column <= last && !amount.isEmpty(); column += step)
            cellText(sheet, row, column) = amount;
    }
}

bool SheetEdits::spread(BudgetSheet &sheet, const SheetRange &range, double amount)
{
    const auto [first, last] = monthsOf(range);
    const int months = last - first + 1;
    const auto cents = std::llround(Amount::rounded(amount) * 100);
    const auto each = cents / months;
    const auto left = cents % months;
    if (double(each + (left > 0 ? 1 : 0)) / 100 > Amount::mostInCell)
        return false;
    for (int row = range.top; row <= range.bottom; ++row) {
        for (int i = 0; i < months; ++i) {
            const auto share = each + (i < left ? 1 : 0);
            cellText(sheet, row, first + i) = share > 0 ? Amount::text(double(share) / 100) : QString();
        }
    }
    return true;
}

int SheetEdits::monthsToSpread(const SheetRange &range)
{
    const auto [first, last] = monthsOf(range);
    return last - first + 1;
}

double SheetEdits::sumToSpread(const BudgetSheet &sheet, const SheetRange &range)
{
    const auto [first, last] = monthsOf(range);
    double sum = 0;
    for (int column = first; column <= last; ++column)
        sum += Amount::stored(cellText(sheet, range.top, column));
    return sum;
}

bool SheetEdits::moveRows(BudgetSheet &sheet, const SheetRange &range, int by)
{
    if (range.top + by < 0 || range.bottom + by >= rowCount)
        return false;
    const auto begin = sheet.rows.begin() + range.top;
    const auto end = sheet.rows.begin() + range.bottom + 1;
    if (by < 0)
        std::rotate(begin - 1, begin, end);
    else
        std::rotate(begin, end, end + 1);
    return true;
}
