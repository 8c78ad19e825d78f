// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/totalsview.h"

#include "budget/model/budgetpages.h"
#include "budget/window/totalschart.h"
#include "budget/window/totalspane.h"
#include "budget/window/totalssums.h"
#include "budget/window/totalstable.h"
#include "shell/charts/barchartview.h"
#include "shell/controls/buttonrow.h"
#include "shell/look/theme.h"

#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int iconSide = 20;
} // namespace

TotalsView::TotalsView(QWidget *parent)
    : TaskPanel(u"totalsPanel"_s, {}, parent)
    , m_sums(new TotalsSums)
    , m_pane(new TotalsPane)
{
    auto *work = new QWidget(this);
    auto *rows = new QVBoxLayout(work);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    rows->addWidget(m_sums);
    rows->addWidget(m_pane, 1);
    setWork(work);
    m_switch = addButton(u"Command12"_s, {}, ButtonKind::Plain, Side::Left);
    m_switch->setIcon(Icons::tinted("repeat"_L1, Theme::of(this).scheme, Theme::of(this).accent));
    m_switch->setIconSize(QSize(iconSide, iconSide));
    connect(m_switch, &QPushButton::clicked, this, &TotalsView::switchBasis);
    connect(addButton(u"totalsPrint"_s, u"&Print Totals"_s), &QPushButton::clicked, this,
            &TotalsView::printWanted);
    setLeaveButton(u"totalsClose"_s, u"&Back to Sheet"_s);
    setFocusProxy(m_pane);
}

void TotalsView::showTotals(ShownYear shown, const BudgetSheet &sheet)
{
    if (std::exchange(m_shown, shown) == shown && m_sheet == sheet)
        return;
    m_sheet = sheet;
    refresh();
}

void TotalsView::switchBasis()
{
    m_basis = m_basis == BudgetBasis::Income ? BudgetBasis::Expenses : BudgetBasis::Income;
    refresh();
}

void TotalsView::refresh()
{
    const BudgetTotals totals = BudgetTotals::of(m_sheet, m_basis);
    setTitle(TotalsLines::heading(m_shown));
    m_switch->setText(BudgetPages::basisCaption(m_basis));
    m_switch->setToolTip(TotalsLines::switchBasis(m_basis));
    setWords(TotalsLines::switchBasis(m_basis));
    m_sums->showSums(totals, m_shown.layer);
    m_pane->table().setRows(totals.rows);
    m_pane->chart().setChart(TotalsChart::of(m_shown, m_sheet, m_basis));
    m_pane->arrange();
    buttonRow().rearrange();
}
