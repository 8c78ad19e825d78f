// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/totalsdesk.h"

#include "budget/model/budgetentry.h"
#include "budget/window/budgetprint.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentyear.h"
#include "budget/window/totalschart.h"
#include "budget/window/totalsview.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"

TotalsDesk::TotalsDesk(Program &program, Sources sources, FunctionWindow *window)
    : QObject(window)
    , m_program(program)
    , m_from(sources)
    , m_window(window)
{
    connect(&sources.model, &SheetModel::recomputed, this, &TotalsDesk::refresh);
    connect(&sources.year, &SpentYear::changed, this, &TotalsDesk::refresh);
    const auto chart = [this](const BudgetSheet &sheet, BudgetBasis basis, QSizeF inches) {
        return TotalsChart::onPaper(m_from.year.shown(), sheet, basis, inches);
    };
    sources.print.setTotals(chart, [this] { return basis(); });
}

void TotalsDesk::open()
{
    if (const auto refusal = whyNoTotals(m_from.year.shownSheet())) {
        m_program.dialogs.ask(m_window, *refusal);
        return;
    }
    if (!m_view)
        makeView();
    m_view->showTotals(m_from.year.shown(), m_from.year.shownSheet());
    m_from.views.open(m_view);
    m_view->setFocus();
}

void TotalsDesk::makeView()
{
    m_view = new TotalsView;
    connect(m_view, &TotalsView::printWanted, &m_from.print, &BudgetPrint::printTotals);
    m_from.views.addPanel(m_view);
}

BudgetBasis TotalsDesk::basis() const
{
    return m_view ? m_view->basis() : BudgetBasis::Income;
}

void TotalsDesk::refresh()
{
    if (m_view && m_from.views.isShown(m_view))
        m_view->showTotals(m_from.year.shown(), m_from.year.shownSheet());
}
