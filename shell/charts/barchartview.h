// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/barchart.h"

#include <QWidget>

#include <memory>

class BarPlot;
class ElidedLabel;
class QLabel;
class QScrollBar;

/// A chart of bars on a panel, in its colours: scrolls where the bars have no room, and names the bar that
/// the mouse or the arrow keys point at. Its parts are named after it: "itemsChart" has itemsChartTitle.
class BarChartView final : public QWidget
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
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    int count() const { return int(m_chart.bars.size()); }
    int headHeight() const;
    int barAt(QPoint place) const;
    void restyle();
    void arrange();
    void scroll();

    BarChart m_chart;
    std::unique_ptr<BarPlot> m_plot;
    QLabel *m_title;
    QLabel *m_caption;
    ElidedLabel *m_reading; ///< of the bar that is named
    QScrollBar *m_bar;
    int m_inView = 0;
    int m_current = -1;
};
