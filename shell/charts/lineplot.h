// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/chartstyle.h"
#include "shell/charts/linechart.h"

#include <QPixmap>
#include <QSharedPointer>

#include <memory>
#include <optional>

class LineMarks;
class QCustomPlot;
class QWidget;

/// The lines of a chart with their axes, as the chart library draws them: each is named at its end, a level
/// at the edge.
class LinePlot
{
public:
    using Spot = LineChart::Spot;
    struct Range {
        double from = 0;
        double to = 0;
        double width() const { return to - from; }
        bool operator==(const Range &) const = default;
    };

    /// The plot is a part of `parent`, or on its own.
    explicit LinePlot(QWidget *parent = nullptr);
    ~LinePlot();
    LinePlot(const LinePlot &) = delete;
    LinePlot &operator=(const LinePlot &) = delete;

    QWidget *widget() const;

    /// All of it is in view then.
    void setChart(const LineChart &chart, const ChartStyle &style);
    /// What there is to see, across, with some air at both ends; and the part of it in view.
    Range whole() const { return m_whole; }
    Range view() const { return m_view; }
    /// Held within the whole; no narrower than a few days or a thousandth of it.
    void setView(Range view);
    /// The point that is named just now.
    void setCurrent(std::optional<Spot> spot);
    void draw();

    /// Of the plot, where it was drawn last.
    QPointF placeOf(const Spot &spot) const;
    double acrossAt(double x) const;
    /// The nearest point within reach; none beyond that.
    std::optional<Spot> spotAt(QPointF place) const;
    /// The point of a series that is nearest to `x`.
    std::optional<Spot> nearest(qsizetype series, double x) const;

    QSize leastSize() const;
    QPixmap picture(QSize size, double scale);

private:
    class Numbers;
    class DayTicks;

    void addSeries(qsizetype index);
    void style();
    void fit(QSize size);
    void fitUp(int height);
    void fitAcross(int width);
    Range valuesInView() const;
    int axisHeight() const;

    QCustomPlot *m_plot;
    std::unique_ptr<QWidget> m_own; ///< where there is no parent
    LineMarks *m_marks;
    LineChart m_chart;
    ChartStyle m_style;
    Range m_whole{0, 1};
    Range m_view{0, 1};
    QSharedPointer<Numbers> m_up, m_across;
    QSharedPointer<DayTicks> m_days; ///< across, where there are days
};
