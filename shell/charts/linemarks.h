// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/chartstyle.h"
#include "shell/charts/linechart.h"

#include <qcustomplot.h>

#include <optional>
#include <vector>

/// What is drawn over the lines of a chart: points, levels, the names at the right edge, and the point that
/// is named. Only for the sources of this room.
class LineMarks final : public QCPLayerable
{
public:
    LineMarks(QCustomPlot *plot, const LineChart &chart, const ChartStyle &style);

    void setCurrent(std::optional<LineChart::Spot> spot) { m_current = spot; }
    /// What the names need of this width.
    int namesWidth(int width) const;

protected:
    void applyDefaultAntialiasingHint(QCPPainter *painter) const override;
    void draw(QCPPainter *painter) override;

private:
    struct Name {
        QString text;
        QColor color;
        double y;
    };

    QPointF placeOf(const LineChart::Point &point) const;
    std::vector<QString> names() const;
    std::vector<Name> placedNames() const;
    std::optional<double> endOf(const LineChart::Series &series) const;
    void drawLevels(QCPPainter *painter) const;
    void drawForecast(QCPPainter *painter) const;
    void drawForecastName(QCPPainter *painter) const;
    void drawPoints(QCPPainter *painter) const;
    static void drawPoint(QCPPainter *painter, QPointF place, std::size_t shape);
    void drawCurrent(QCPPainter *painter) const;
    void drawNames(QCPPainter *painter) const;
    void drawWords(QCPPainter *painter) const;

    QCustomPlot *m_plot;
    const LineChart &m_chart;
    const ChartStyle &m_style;
    std::optional<LineChart::Spot> m_current;
};
