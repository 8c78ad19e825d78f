// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/chartview.h"
#include "shell/charts/linechart.h"

#include <memory>
#include <optional>

class GridView;
class LinePlot;
class LinkButton;
template <typename Row>
class RowsModel;

/// A chart of lines on a panel: names the point that the mouse or the arrow keys point at, and shows a part
/// of it after the keys + and -, or the wheel while it has the focus or with Ctrl; 0 shows all of it. A link
/// shows the same figures as a table: "costChart" has costChartAsTable and costChartTable.
class LineChartView final : public ChartView
{
    Q_OBJECT
public:
    explicit LineChartView(const QString &name, QWidget *parent = nullptr);
    ~LineChartView() override;

    void setChart(const LineChart &chart);
    const LineChart &chart() const { return m_chart; }

    /// The point that is named.
    std::optional<LineChart::Spot> current() const { return m_current; }
    void setCurrent(std::optional<LineChart::Spot> spot);
    /// Of the view.
    QPoint placeOf(const LineChart::Spot &spot) const;

    /// Shows `factor` times as much as now, around `x` of the axis across; it stays where it is.
    void zoom(double factor, double x);
    void showAll();
    /// Whether a part of it is shown.
    bool isZoomed() const;
    bool isTable() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void currentChanged();

protected:
    void setStyle(const ChartStyle &style) override;
    void arrange() override;
    void nameFirst() override;
    void nameNothing() override { setCurrent({}); }

    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    std::optional<LineChart::Spot> beside(int key) const;
    std::optional<LineChart::Spot> spotAt(QPoint place) const;
    void switchToTable();
    void makeTable();
    void fillTable();
    void pan(double by);
    void refresh();
    double middle() const;

    LineChart m_chart;
    std::unique_ptr<LinePlot> m_plot;
    std::optional<LineChart::Spot> m_current;
    LinkButton *m_asTable;
    GridView *m_table = nullptr; ///< once it was asked for
    std::unique_ptr<RowsModel<QStringList>> m_rows;
    int m_inset = 0;
    QPoint m_dragged; ///< where the mouse was last, with its button down
};
