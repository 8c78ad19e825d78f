// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/totals.h"

#include <QWidget>

class BarChartView;
class TotalsTable;

/// The items of a year beside their chart.
class TotalsPane final : public QWidget
{
    Q_OBJECT
public:
    explicit TotalsPane(QWidget *parent = nullptr);

    TotalsTable &table() const { return *m_table; }
    BarChartView &chart() const { return *m_chart; }
    /// Call when the table has other rows.
    void arrange();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    TotalsTable *m_table;
    BarChartView *m_chart;
};
