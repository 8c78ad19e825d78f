// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/barchart.h"
#include "shell/charts/chartstyle.h"

#include <QPixmap>

#include <memory>

class QCustomPlot;
class QWidget;

/// The bars of a chart with their axis, as the chart library draws them: names at the left, amounts at the
/// bars' ends.
class BarPlot
{
public:
    /// The plot is a part of `parent`, or on its own.
    explicit BarPlot(QWidget *parent = nullptr);
    ~BarPlot();
    BarPlot(const BarPlot &) = delete;
    BarPlot &operator=(const BarPlot &) = delete;

    QWidget *widget() const;

    void setChart(const BarChart &chart, const ChartStyle &style);
    /// The bars in view, and how high one is with its name.
    void setRows(int first, int count, int height);
    /// The bar that is named just now; -1 for none.
    void setCurrent(int bar);
    void draw();

    /// How high the plot is with so many bars of this height.
    int heightOf(int count, int height) const;
    int rowHeight() const { return m_rowHeight; }
    QPixmap picture(QSize size, double scale);

private:
    class Rows;

    void fit(int width);
    int axisHeight() const;

    QCustomPlot *m_plot;
    std::unique_ptr<QWidget> m_own; ///< where there is no parent
    Rows *m_rows;
    BarChart m_chart;
    ChartStyle m_style;
    int m_rowHeight = 1;
    int m_count = 0;
};
