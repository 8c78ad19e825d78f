// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/totalspane.h"

#include "budget/window/totalstable.h"
#include "shell/charts/barchartview.h"
#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int gap = 12;
constexpr int widestTable = 560;
constexpr int narrowestChart = 260;
} // namespace

TotalsPane::TotalsPane(QWidget *parent)
    : QWidget(parent)
    , m_table(named(new TotalsTable(this), u"Grid2"_s))
    , m_chart(new BarChartView(u"totalsChart"_s, this))
{
    setFocusProxy(m_table);
}

QSize TotalsPane::sizeHint() const
{
    const QSize table = m_table->sizeHint();
    const QSize chart = m_chart->sizeHint();
    return {table.width() + gap + chart.width(), std::max(table.height(), chart.height())};
}

QSize TotalsPane::minimumSizeHint() const
{
    const QSize table = m_table->minimumSizeHint();
    return {table.width(), std::max(table.height(), m_chart->minimumSizeHint().height())};
}

void TotalsPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

/// Whole rows of the table, and the rest of the width for the chart. Where letters are so large that it would
/// have none, it is left out: the table has the same figures.
void TotalsPane::arrange()
{
    const int least = m_table->minimumSizeHint().width();
    const bool isWide = width() >= least + gap + TypeScale::wide(narrowestChart);
    const int table = isWide ? std::max(least, std::min(widestTable, width() * 2 / 5)) : width();
    m_chart->setVisible(isWide);
    m_table->setGeometry(0, 0, table, m_table->heightIn(height()));
    m_chart->setGeometry(table + gap, 0, width() - table - gap, std::min(height(), m_chart->mostHeight()));
}
