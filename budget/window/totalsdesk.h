// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetfigures.h"

#include <QObject>

class BudgetPrint;
class FunctionWindow;
class SheetModel;
class SpentYear;
class TotalsView;
class WorkViews;
struct Program;

/// Shows the year's totals over the sheet where there are any, of the layer that the sheet shows, keeps them
/// as it is, and has their chart printed.
class TotalsDesk final : public QObject
{
    Q_OBJECT
public:
    struct Sources {
        const SheetModel &model;
        const SpentYear &year;
        WorkViews &views;
        BudgetPrint &print;
    };

    TotalsDesk(Program &program, Sources sources, FunctionWindow *window);

    /// Opens the totals, or says why there are none.
    void open();

private:
    void makeView();
    BudgetBasis basis() const;
    void refresh();

    Program &m_program;
    Sources m_from;
    FunctionWindow *m_window;
    TotalsView *m_view = nullptr; ///< made when first asked for
};
