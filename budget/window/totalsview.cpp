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
    , m_work(new QVBoxLayout)
    , m_sums(new TotalsSums)
    , m_pane(new TotalsPane)
{
    auto *work = new QWidget(this);
    work->setLayout(m_work);
    m_work->setContentsMargins({});
    m_work->addWidget(m_sums);
    m_work->addWidget(m_pane, 1);
    TotalsView::setLow(false);
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

void TotalsView::setLow(bool isLow)
{
    TaskPanel::setLow(isLow);
    m_work->setSpacing(isLow ? 8 : 12);
    m_sums->setLow(isLow);
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
