// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/sheetlines.h"

#include "budget/model/amount.h"
#include "budget/model/papermessages.h"
#include "shell/core/tabtext.h"
#include "storage/ansitext.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t rowsToExportFrom = 20;
constexpr qsizetype longestName = 120;

/// The rows in use, a line each.
QString rowsText(const BudgetSheet &sheet, QLatin1StringView lineEnd)
{
    QString text = TabText::row(BudgetPaper::headings()) + lineEnd;
    for (const BudgetSheet::Row &row : sheet.rows) {
        if (!row.isEmpty())
            text += TabText::row(SheetLines::cells(row)) + lineEnd;
    }
    return text;
}

} // namespace

std::size_t SheetLines::usedRows(const BudgetSheet &sheet)
{
    std::size_t count = sheet.rows.size();
    while (count > 0 && sheet.rows[count - 1].isEmpty())
        --count;
    return count;
}

QStringList SheetLines::cells(const BudgetSheet::Row &row)
{
    QStringList cells{row.item};
    for (const QString &amount : row.amounts)
        cells << (amount.trimmed().isEmpty() ? QString() : Amount::text(Amount::stored(amount)));
    return cells;
}

SheetLines::Sums SheetLines::sums(const BudgetFigures &figures)
{
    Sums sums;
    for (const BudgetFigures::Month &month : figures.months) {
        sums.expenses << Amount::text(double(month.expenses));
        sums.incomes << Amount::text(double(month.income));
        sums.balances << Amount::text(double(month.balance));
    }
    return sums;
}

QString SheetLines::clipboardText(int year, const BudgetSheet &sheet)
{
    const Sums sums = SheetLines::sums(BudgetFigures::of(sheet));
    QString text = TabText::row({BudgetPaper::clipboardTitle(), QString::number(year)}) + u'\n';
    text += rowsText(sheet, "\n"_L1);
    text += TabText::row(QStringList(BudgetPaper::totalExpenses()) + sums.expenses) + u'\n';
    text += TabText::row(QStringList(BudgetPaper::totalIncome()) + sums.incomes) + u'\n';
    text += TabText::row(QStringList(BudgetPaper::balance()) + sums.balances) + u'\n';
    return text;
}

QByteArray SheetLines::exportText(const BudgetSheet &sheet)
{
    return AnsiText::encode(rowsText(sheet, "\r\n"_L1));
}

bool SheetLines::isWorthExporting(const BudgetSheet &sheet)
{
    const auto first = sheet.rows.begin();
    return std::any_of(first, first + rowsToExportFrom,
                       [](const BudgetSheet::Row &row) { return !row.item.trimmed().isEmpty(); });
}

QString SheetLines::exportExtension(bool isFolderChosen)
{
    return isFolderChosen ? u".XLS"_s : u".xls"_s;
}

QString SheetLines::exportName(int year, bool isFolderChosen)
{
    return u"Budget"_s + QString::number(year) + exportExtension(isFolderChosen);
}

std::optional<QString> SheetLines::exportFile(const QString &typed, bool isFolderChosen)
{
    const QString extension = exportExtension(isFolderChosen);
    QString name = typed.trimmed();
    if (name.endsWith(extension, Qt::CaseInsensitive))
        name.chop(extension.size());
    const auto isForbidden = [](QChar c) { return c < u' ' || u"/\\:*?\"<>|"_s.contains(c); };
    if (name.trimmed().isEmpty() || name.startsWith(u'.') || name.size() > longestName ||
        std::any_of(name.begin(), name.end(), isForbidden))
        return std::nullopt;
    return name + extension;
}
