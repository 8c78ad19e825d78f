// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetfiles.h"
#include "shell/frame/functionwindow.h"

/// The home budget: the worksheet of one year, what it comes to month by month, and the year's totals.
class Budget1 final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit Budget1(Program &program, QWidget *parent = nullptr);

private:
    BudgetFiles m_files;
};
