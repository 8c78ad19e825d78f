// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetpages.h"
#include "shell/charts/chartpicture.h"
#include "shell/frame/commands.h"

#include <QObject>
#include <QSizeF>

#include <functional>

class FunctionWindow;
class QMenu;
class SheetGrid;
class SheetModel;
class SpentYear;
struct PageContext;
struct Program;

/// What leaves the budget's window: its pages, its text for the clipboard, its spreadsheet file. All of it is
/// the budget as it is shown, saved or not.
class BudgetPrint final : public QObject
{
    Q_OBJECT
public:
    /// What is printed; all of it outlives the printing.
    struct Sources {
        const SheetModel &model;
        SheetGrid &grid;
        const SpentYear &year;
    };
    /// The chart of the totals on paper, of this size in inches.
    using Chart = std::function<QImage(const BudgetSheet &, BudgetBasis, QSizeF)>;

    BudgetPrint(Program &program, FunctionWindow *window, Sources sources);

    /// Where the totals page has its chart and its percentages from; without, it has no chart.
    void setTotals(Chart chart, std::function<BudgetBasis()> basis);

    void addPrintCommands(Commands &commands, QMenu *menu);
    void addCopyCommand(Commands &commands, QMenu *menu);
    void addExportCommand(Commands &commands, QMenu *menu);

    void printTotals();

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    QString storeChart(const BudgetSheet &sheet, BudgetBasis basis, QSizeF inches);
    void printSheet();
    void printDiscussion();
    void copy();
    void exportFile();
    BudgetSheet sheet() const;
    BudgetSheet shownSheet() const;
    BudgetPages::Spent spent() const;
    QString nameOf(const QString &what) const;

    Program &m_program;
    FunctionWindow *m_window;
    Sources m_from;
    Chart m_chart;
    std::function<BudgetBasis()> m_basis;
    ChartPicture m_picture;
};
