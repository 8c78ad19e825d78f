// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/barchart.h"
#include "shell/charts/chartview.h"

#include <memory>

class BarPlot;
class QScrollBar;

/// A chart of bars on a panel: scrolls where the bars have no room, and names the bar that the mouse or the
/// arrow keys point at.
class BarChartView final : public ChartView
{
    Q_OBJECT
public:
    explicit BarChartView(const QString &name, QWidget *parent = nullptr);
    ~BarChartView() override;

    void setChart(const BarChart &chart);
    const BarChart &chart() const { return m_chart; }

    /// The bar that is named; -1 for none.
    int current() const { return m_current; }
    void setCurrent(int bar);
    /// Of the view; null for a bar that is not in view.
    QRect barRect(int bar) const;

    /// The height in which no bar could stand further from the next.
    int mostHeight() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void setStyle(const ChartStyle &style) override;
    void arrange() override;
    void nameFirst() override;
    void nameNothing() override { setCurrent(-1); }

    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    int count() const { return int(m_chart.bars.size()); }
    int barAt(QPoint place) const;
    void scroll();

    BarChart m_chart;
    std::unique_ptr<BarPlot> m_plot;
    QScrollBar *m_bar;
    int m_inView = 0;
    int m_current = -1;
};
