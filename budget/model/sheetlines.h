// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetfigures.h"

#include <QStringList>

#include <optional>

/// A worksheet as lines of text, for paper, clipboard and spreadsheets.
namespace SheetLines {

/// How many rows there are down to the last one in use.
std::size_t usedRows(const BudgetSheet &sheet);

/// The item and its amounts as they are printed, "1250.00"; empty cells stay empty.
QStringList cells(const BudgetSheet::Row &row);

/// What the months come to, January first.
struct Sums {
    QStringList expenses;
    QStringList incomes;
    QStringList balances;
};
Sums sums(const BudgetFigures &figures);

/// The budget for the clipboard: its title and year, headings, the rows in use and the lines of totals.
QString clipboardText(int year, const BudgetSheet &sheet);

/// The headings and the rows in use for a spreadsheet file: Windows-1252, CRLF.
QByteArray exportText(const BudgetSheet &sheet);

/// Whether one of the first 20 rows has an item.
bool isWorthExporting(const BudgetSheet &sheet);

/// ".xls"; in capitals where a folder was chosen.
QString exportExtension(bool isFolderChosen);
/// "Budget2026" with its extension.
QString exportName(int year, bool isFolderChosen);

/// The name that a typed one stands for: with the extension of a spreadsheet, so that no file of another kind
/// is ever replaced. Nothing where it is no file name.
std::optional<QString> exportFile(const QString &typed, bool isFolderChosen);

} // namespace SheetLines
