// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetfigures.h"
#include "budget/window/chartpicture.h"
#include "shell/frame/commands.h"

#include <QObject>
#include <QSizeF>

#include <functional>

class FunctionWindow;
class QMenu;
struct PageContext;
struct Program;

/// What leaves the budget's window: its pages, its text for the clipboard, its spreadsheet file. All of it is
/// the budget as it is shown, saved or not.
class BudgetPrint final : public QObject
{
    Q_OBJECT
public:
    struct Sources {
        std::function<int()> year;
        std::function<BudgetSheet()> sheet; ///< as it is typed
        std::function<BudgetBasis()> basis; ///< as it is chosen in the totals
        /// The chart of the totals on paper, of this size in inches; a null picture where it cannot be drawn.
        std::function<QImage(const BudgetSheet &, BudgetBasis, QSizeF)> chart;
    };

    BudgetPrint(Program &program, FunctionWindow *window, Sources sources);

    void addPrintCommands(Commands &commands, QMenu *menu);
    void addCopyCommand(Commands &commands, QMenu *menu);
    void addExportCommand(Commands &commands, QMenu *menu);

    void printTotals();

private:
    void printSheet();
    void printDiscussion();
    void copy();
    void exportFile();
    QString nameOf(const QString &what) const;

    Program &m_program;
    FunctionWindow *m_window;
    Sources m_from;
    ChartPicture m_chart;
};
