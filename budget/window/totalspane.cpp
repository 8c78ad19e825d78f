// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/totalspane.h"

#include "budget/window/totalstable.h"
#include "shell/charts/barchartview.h"
#include "shell/controls/controls.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int gap = 12;
constexpr int widestTable = 560;
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
    const QSize chart = m_chart->minimumSizeHint();
    return {table.width() + gap + chart.width(), std::max(table.height(), chart.height())};
}

void TotalsPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

/// Whole rows of the table, and the rest of the width for the chart.
void TotalsPane::arrange()
{
    const int least = m_table->minimumSizeHint().width();
    const int table = std::max(least, std::min(widestTable, width() * 2 / 5));
    m_table->setGeometry(0, 0, table, m_table->heightIn(height()));
    m_chart->setGeometry(table + gap, 0, width() - table - gap, std::min(height(), m_chart->mostHeight()));
}
