// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/totals.h"
#include "shell/controls/taskpanel.h"

class TotalsPane;
class QVBoxLayout;
class TotalsSums;

/// The totals of a year over its sheet: what it comes to, item by item as a table and as a chart, with
/// percentages of the income or of the expenses.
class TotalsView final : public TaskPanel
{
    Q_OBJECT
public:
    explicit TotalsView(QWidget *parent = nullptr);

    void showTotals(ShownYear shown, const BudgetSheet &sheet);

    BudgetBasis basis() const { return m_basis; }

signals:
    void printWanted();

protected:
    void setLow(bool isLow) override;

private:
    void switchBasis();
    void refresh();

    ShownYear m_shown{0};
    BudgetSheet m_sheet;
    BudgetBasis m_basis = BudgetBasis::Income;
    QVBoxLayout *m_work;
    TotalsSums *m_sums;
    TotalsPane *m_pane;
    QPushButton *m_switch;
};
