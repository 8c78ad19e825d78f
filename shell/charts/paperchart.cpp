// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/paperchart.h"

#include "shell/charts/barplot.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double printed = 300; ///< points to the inch
constexpr double drawn = 96;
constexpr int mostRowHeight = 30;
constexpr int headGap = 8;

QSize points(QSizeF inches)
{
    return {int(std::round(inches.width() * drawn)), int(std::round(inches.height() * drawn))};
}

/// The title with the caption behind it.
int headHeight(const ChartStyle &style)
{
    return QFontMetrics(style.title).height() + headGap;
}

/// The room of the bars, with `plot` for the axis below them.
int barRoom(QSizeF inches, const ChartStyle &style)
{
    BarChart any;
    any.values = any.unit = QLatin1Char('x'); // an axis with its name
    BarPlot plot;
    plot.setChart(any, style);
    return points(inches).height() - headHeight(style) - plot.heightOf(0, 0);
}

void drawHead(QPainter &painter, const BarChart &chart, const ChartStyle &style, int width)
{
    const int height = QFontMetrics(style.title).height();
    painter.setPen(style.text);
    painter.setFont(style.title);
    painter.drawText(QRect(0, 0, width, height), int(Qt::AlignLeft | Qt::AlignVCenter), chart.title);
    painter.setFont(style.label);
    painter.drawText(QRect(0, 0, width, height), int(Qt::AlignRight | Qt::AlignVCenter), chart.caption);
}

} // namespace

int PaperChart::mostBars(QSizeF inches)
{
    const ChartStyle style = ChartStyle::onPaper();
    return std::max(1, barRoom(inches, style) / style.rowHeight);
}

QImage PaperChart::draw(const BarChart &chart, QSizeF inches)
{
    constexpr double scale = printed / drawn;
    const ChartStyle style = ChartStyle::onPaper();
    const QSize size = points(inches);
    const int count = std::max(1, int(chart.bars.size()));
    const int rowHeight = std::min(mostRowHeight, barRoom(inches, style) / count);
    BarPlot plot;
    plot.setChart(chart, style);
    plot.setRows(0, count, rowHeight);
    QImage image(size * scale, QImage::Format_RGB32);
    image.fill(style.ground);
    QPainter painter(&image);
    painter.scale(scale, scale);
    drawHead(painter, chart, style, size.width());
    const QSize below(size.width(), plot.heightOf(count, rowHeight));
    const QPixmap bars = plot.picture(below, scale);
    painter.drawPixmap(QRectF(QPointF(0, headHeight(style)), QSizeF(below)), bars, QRectF(bars.rect()));
    return image;
}
