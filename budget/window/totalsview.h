// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/totals.h"
#include "shell/controls/taskpanel.h"

class BarChartView;
class TotalsSums;
class TotalsTable;

/// The totals of a year over its sheet: what it comes to, item by item as a table and as a chart, with
/// percentages of the income or of the expenses.
class TotalsView final : public TaskPanel
{
    Q_OBJECT
public:
    explicit TotalsView(QWidget *parent = nullptr);

    void showTotals(int year, const BudgetSheet &sheet);

    BudgetBasis basis() const { return m_basis; }

signals:
    void printWanted();

private:
    QWidget *makeFigures();
    void switchBasis();
    void refresh();

    int m_year = 0;
    BudgetSheet m_sheet;
    BudgetBasis m_basis = BudgetBasis::Income;
    QPushButton *m_switch;
    TotalsSums *m_sums;
    TotalsTable *m_table = nullptr;
    BarChartView *m_chart = nullptr;
};
