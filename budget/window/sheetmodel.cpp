// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/sheetmodel.h"

#include "budget/model/amount.h"
#include "budget/model/budgetentry.h"
#include "budget/model/lines.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// `typed` in place of `original`, of which a box showed control characters as blanks: where nothing was
/// typed, they stay.
QString withControls(const QString &original, const QString &typed)
{
    const QString shown = inOneLine(original);
    const qsizetype most = std::min(shown.size(), typed.size());
    const auto same = std::ranges::mismatch(shown, typed).in1 - shown.begin();
    qsizetype end = 0;
    while (end < most - same && shown[shown.size() - 1 - end] == typed[typed.size() - 1 - end])
        ++end;
    return original.first(same) + typed.sliced(same, typed.size() - same - end) + original.last(end);
}

} // namespace

SheetModel::SheetModel(QObject *parent)
    : QAbstractTableModel(parent)
    , m_sheet(std::make_shared<BudgetSheet>())
    , m_saved(m_sheet)
{}

void SheetModel::load(const BudgetSheet &sheet)
{
    m_saved = std::make_shared<BudgetSheet>(sheet);
    show(m_saved);
}

void SheetModel::show(const Sheet &sheet)
{
    const SheetRange range = SheetRange::ofDifference(*m_sheet, *sheet);
    m_sheet = sheet;
    m_figures = BudgetFigures::of(*m_sheet);
    if (!range.isEmpty())
        emit dataChanged(index(range.top, range.left), index(range.bottom, range.right));
    emit recomputed();
}

bool SheetModel::change(const QString &title, const BudgetSheet &wanted, const SheetRange &range)
{
    const Sheet before = m_beforePreview ? std::exchange(m_beforePreview, {}) : m_sheet;
    if (wanted == *before) {
        if (before != m_sheet)
            show(before);
        return false;
    }
    const Sheet after = std::make_shared<BudgetSheet>(wanted);
    show(after);
    const SheetRange shown = range.isEmpty() ? SheetRange::ofDifference(*before, *after) : range;
    emit edited({title, [=, this] { return exchange(after, before, shown); },
                 [=, this] { return exchange(before, after, shown); }, UndoStep::Typed});
    return true;
}

void SheetModel::preview(const BudgetSheet &sheet)
{
    m_beforePreview = m_sheet;
    show(std::make_shared<BudgetSheet>(sheet));
}

ChangeResult SheetModel::exchange(const Sheet &shown, const Sheet &wanted, const SheetRange &range)
{
    if (*m_sheet != *shown)
        return ChangeResult::Outdated;
    show(wanted);
    emit shownAgain(range);
    return ChangeResult::Done;
}

void SheetModel::setLayer(SheetLayer layer)
{
    if (layer == m_layer)
        return;
    m_layer = layer;
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit layerChanged();
}

void SheetModel::setSpent(const Sums &sums, const MonthSums &noRow)
{
    m_spent = sums;
    m_spentOnNoRow = noRow;
    if (m_layer != SheetLayer::Spent)
        return;
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit layerChanged();
}

SheetModel::MonthFigures SheetModel::shownFigures(std::size_t month) const
{
    const BudgetFigures::Month &planned = m_figures.months[month];
    const QString income = shownIncome(m_sheet->incomes[month]);
    if (m_layer == SheetLayer::Planned)
        return {Amount::text(double(planned.expenses)), income, Amount::text(double(planned.balance))};
    double spent = m_spentOnNoRow[month];
    for (const MonthSums &row : m_spent)
        spent += row[month];
    return {Amount::text(spent), income, Amount::text(double(planned.income) - spent)};
}

int SheetModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(BudgetSheet::rowCount);
}

int SheetModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : SheetColumn::count;
}

double SheetModel::spentIn(int row, int column) const
{
    return m_spent[std::size_t(row)][std::size_t(column - SheetColumn::firstMonth)];
}

QString SheetModel::cellShown(int row, int column) const
{
    if (m_layer == SheetLayer::Planned || column == SheetColumn::item)
        return inOneLine(cellText(*m_sheet, row, column));
    const double sum = spentIn(row, column);
    return sum == 0 ? QString() : Amount::text(sum);
}

bool SheetModel::isOverPlan(int row, int column) const
{
    if (m_layer == SheetLayer::Planned || column == SheetColumn::item)
        return false;
    const double sum = spentIn(row, column);
    return Amount::rounded(sum) > Amount::rounded(Amount::stored(cellText(*m_sheet, row, column)));
}

QVariant SheetModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::EditRole:
        // What is typed there is added to what the cell shows.
        if (m_layer == SheetLayer::Spent && index.column() != SheetColumn::item)
            return QString();
        [[fallthrough]];
    case Qt::DisplayRole:
        return cellShown(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (index.column() == SheetColumn::item ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::ToolTipRole:
        if (!isOverPlan(index.row(), index.column()))
            return {};
        return BudgetLines::overPlan(spentIn(index.row(), index.column()),
                                     Amount::stored(cellText(*m_sheet, index.row(), index.column())));
    case Qt::AccessibleDescriptionRole:
        return data(index, Qt::ToolTipRole);
    case overPlanRole:
        return isOverPlan(index.row(), index.column());
    default:
        return {};
    }
}

QVariant SheetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (section == SheetColumn::item ? Qt::AlignLeft : Qt::AlignRight));
    return role == Qt::DisplayRole ? SheetColumn::headings().value(section) : QVariant();
}

Qt::ItemFlags SheetModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return m_isReadOnly || !index.isValid() ? flags : flags | Qt::ItemIsEditable;
}

bool SheetModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    const QString typed = value.toString();
    // Nothing was typed: what the file has stays, however it is written.
    if (typed == data(index, Qt::EditRole).toString())
        return false;
    return takeCell(index.row(), index.column(), typed);
}

bool SheetModel::takeCell(int row, int column, const QString &typed)
{
    if (column != SheetColumn::item && m_layer == SheetLayer::Spent) {
        emit spentTyped(row, column - SheetColumn::firstMonth, typed);
        return true;
    }
    BudgetSheet wanted = *m_sheet;
    QString &text = cellText(wanted, row, column);
    if (column == SheetColumn::item) {
        text = withControls(text, typed);
        change(BudgetLines::cell(inOneLine(text), {}), wanted);
        return true;
    }
    const BudgetEntry entry = BudgetEntry::ofCell(typed);
    text = entry.text;
    change(BudgetLines::cell(inOneLine(cellText(wanted, row, SheetColumn::item)),
                             SheetColumn::headings()[column]),
           wanted);
    if (entry.notice)
        emit noticed(*entry.notice, index(row, column));
    else if (BudgetEntry::isPartlyRead(typed))
        emit partlyRead(typed, entry.text);
    return true;
}
