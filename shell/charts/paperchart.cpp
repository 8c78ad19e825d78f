// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/paperchart.h"

#include "shell/charts/barplot.h"
#include "shell/charts/lineplot.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double printed = 300; ///< points to the inch
constexpr double drawn = 96;
constexpr int mostRowHeight = 30;
constexpr double narrowestColumn = 3.5; ///< in inches
constexpr int headGap = 8;
constexpr int edge = 6; ///< at the right, as the plot's

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

void drawHead(QPainter &painter, const auto &chart, const ChartStyle &style, int width)
{
    const int height = QFontMetrics(style.title).height();
    painter.setPen(style.text);
    painter.setFont(style.title);
    painter.drawText(QRect(style.inset, 0, width, height), int(Qt::AlignLeft | Qt::AlignVCenter),
                     chart.title);
    painter.setFont(style.label);
    painter.drawText(QRect(0, 0, width - edge, height), int(Qt::AlignRight | Qt::AlignVCenter),
                     chart.caption);
}

/// Bars that have no room below one another stand side by side, as long as their figures stay readable.
int mostColumns(QSizeF inches)
{
    return std::max(1, int(inches.width() / narrowestColumn));
}

int rowsIn(QSizeF inches, const ChartStyle &style)
{
    return std::max(1, barRoom(inches, style) / style.rowHeight);
}

} // namespace

int PaperChart::mostBars(QSizeF inches)
{
    return rowsIn(inches, ChartStyle::onPaper()) * mostColumns(inches);
}

QImage PaperChart::draw(const BarChart &chart, QSizeF inches, double inset)
{
    constexpr double scale = printed / drawn;
    const ChartStyle style = ChartStyle::onPaper(int(std::round(inset * drawn)));
    const QSize size = points(inches);
    const int count = std::max(1, int(chart.bars.size()));
    const int columns = std::min(mostColumns(inches), 1 + (count - 1) / rowsIn(inches, style));
    const int rows = 1 + (count - 1) / columns;
    const int rowHeight = std::min(mostRowHeight, barRoom(inches, style) / rows);
    BarPlot plot;
    plot.setChart(chart, style);
    QImage image((inches * printed).toSize(), QImage::Format_RGB32);
    image.fill(style.ground);
    QPainter painter(&image);
    painter.scale(scale, scale);
    drawHead(painter, chart, style, size.width());
    const QSize part(size.width() / columns, plot.heightOf(rows, rowHeight));
    for (int column = 0; column < columns; ++column) {
        plot.setRows(column * rows, rows, rowHeight);
        const QPixmap bars = plot.picture(part, scale);
        painter.drawPixmap(QRectF(QPointF(column * part.width(), headHeight(style)), QSizeF(part)), bars,
                           QRectF(bars.rect()));
    }
    return image;
}

QImage PaperChart::draw(const LineChart &chart, QSizeF inches, double inset)
{
    constexpr double scale = printed / drawn;
    const ChartStyle style = ChartStyle::onPaper(int(std::round(inset * drawn)));
    const QSize size = points(inches);
    const int head = headHeight(style);
    LinePlot plot;
    plot.setChart(chart, style);
    QImage image((inches * printed).toSize(), QImage::Format_RGB32);
    image.fill(style.ground);
    QPainter painter(&image);
    painter.scale(scale, scale);
    drawHead(painter, chart, style, size.width());
    const QSize part(size.width(), std::max(1, size.height() - head));
    const QPixmap lines = plot.picture(part, scale);
    painter.drawPixmap(QRectF(QPointF(0, head), QSizeF(part)), lines, QRectF(lines.rect()));
    return image;
}
