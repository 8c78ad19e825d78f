// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/layaside.h"
#include "budget/model/yearcomparison.h"

#include <QObject>

class BudgetYear;
class Commands;
class FunctionWindow;
class QMenu;
class SheetGrid;
class SheetModel;
class WorkViews;
class YearsView;
struct Program;

/// Compares the year that is open, as it is typed, with the year before, and says what to lay aside.
class YearsDesk final : public QObject
{
    Q_OBJECT
public:
    struct Desk {
        SheetModel &model;
        SheetGrid &grid;
        BudgetYear &year;
        WorkViews &views;
    };

    YearsDesk(Program &program, Desk desk, FunctionWindow *window);

    void addCommand(Commands &commands, QMenu *view);

private:
    void open();
    void refresh();
    void print();
    YearComparison comparison() const;
    LayAside layAside() const;

    Program &m_program;
    Desk m_desk;
    FunctionWindow *m_window;
    YearsView *m_view;
};
