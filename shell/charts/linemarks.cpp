// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/linemarks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int gap = 10;
constexpr double pointSize = 6;
constexpr double ringSize = 12;
constexpr double pointSpace = 10; ///< points nearer to one another are left to the line
constexpr double nameGap = 6;
constexpr float shadeOpacity = 0.14F;
constexpr float behindOpacity = 0.85F; ///< of the ground under a name
constexpr double mostForNames = 0.3;

} // namespace

LineMarks::LineMarks(QCustomPlot *plot, const LineChart &chart, const ChartStyle &style)
    : QCPLayerable(plot, u"overlay"_s)
    , m_plot(plot)
    , m_chart(chart)
    , m_style(style)
{}

void LineMarks::applyDefaultAntialiasingHint(QCPPainter *painter) const
{
    painter->setAntialiasing(true);
}

QPointF LineMarks::placeOf(const LineChart::Point &point) const
{
    return {m_plot->xAxis->coordToPixel(point.x), m_plot->yAxis->coordToPixel(point.y)};
}

void LineMarks::draw(QCPPainter *painter)
{
    if (m_chart.isEmpty()) {
        drawWords(painter);
        return;
    }
    painter->save();
    painter->setClipRect(m_plot->axisRect()->rect().adjusted(-8, -8, 8, 8));
    drawForecast(painter);
    drawLevels(painter);
    drawPoints(painter);
    drawCurrent(painter);
    drawForecastName(painter);
    painter->restore();
    drawNames(painter);
    painter->setFont(m_style.label);
    painter->setPen(m_style.quiet);
    painter->drawText(
        QRectF(m_style.inset, 0, m_plot->viewport().width(), QFontMetrics(m_style.label).height()),
        int(Qt::AlignLeft | Qt::AlignVCenter), m_chart.up.name);
}

void LineMarks::drawLevels(QCPPainter *painter) const
{
    const QRect axes = m_plot->axisRect()->rect();
    for (const LineChart::Level &level : m_chart.levels) {
        const bool isGoal = level.kind == LineChart::Level::Goal;
        const double y = std::round(m_plot->yAxis->coordToPixel(level.y)) + 0.5;
        painter->setPen(QPen(m_style.quiet, 1, isGoal ? Qt::DashLine : Qt::DotLine, Qt::FlatCap));
        painter->drawLine(QPointF(axes.left(), y), QPointF(axes.right(), y));
    }
}

void LineMarks::drawForecast(QCPPainter *painter) const
{
    const auto start = m_chart.forecastStart();
    if (!start)
        return;
    const LineChart::Forecast &forecast = *m_chart.forecast;
    const QRectF axes = m_plot->axisRect()->rect();
    const auto across = [this](double x) { return m_plot->xAxis->coordToPixel(x); };
    const QRectF stretch(QPointF(across(forecast.from), axes.top()),
                         QPointF(across(forecast.to), axes.bottom()));
    if (m_style.isOnPaper) {
        painter->setPen(QPen(m_style.quiet, 0.5));
        painter->drawLine(stretch.topLeft(), stretch.bottomLeft());
        painter->drawLine(stretch.topRight(), stretch.bottomRight());
    } else {
        QColor shade = m_style.quiet;
        shade.setAlphaF(shadeOpacity);
        painter->fillRect(stretch, shade);
    }
    const QPointF goal(across(forecast.at), m_plot->yAxis->coordToPixel(forecast.y));
    QPen dashes(m_style.lineColor(start->series), m_style.isOnPaper ? 1 : 1.5, Qt::CustomDashLine,
                Qt::FlatCap);
    dashes.setDashPattern({4, 4});
    painter->setPen(dashes);
    painter->drawLine(placeOf(m_chart.at(*start)), goal);
    painter->setPen(QPen(m_style.quiet, 1, Qt::DotLine, Qt::FlatCap));
    painter->drawLine(QPointF(goal.x(), axes.top()), QPointF(goal.x(), axes.bottom()));
}

/// Where the line that leads there does not come: above one that falls, below one that rises.
void LineMarks::drawForecastName(QCPPainter *painter) const
{
    const auto start = m_chart.forecastStart();
    if (!start)
        return;
    const LineChart::Forecast &forecast = *m_chart.forecast;
    const QRectF axes = m_plot->axisRect()->rect();
    const double end = m_plot->xAxis->coordToPixel(forecast.at) - nameGap;
    if (end > axes.right() || end < axes.left())
        return;
    const QFontMetrics metrics(m_style.label);
    const QString name = metrics.elidedText(forecast.name, Qt::ElideRight, int(end - axes.left()));
    QRectF place(QPointF(), QSizeF(metrics.horizontalAdvance(name) + 2, metrics.height()));
    place.moveTopRight({end, axes.top() + nameGap});
    if (forecast.y > m_chart.at(*start).y)
        place.moveBottom(axes.bottom() - nameGap);
    QColor behind = m_style.ground;
    behind.setAlphaF(behindOpacity);
    painter->fillRect(place, behind);
    painter->setFont(m_style.label);
    painter->setPen(m_style.text);
    painter->drawText(place, int(Qt::AlignRight | Qt::AlignVCenter), name);
}

/// Where they are too near to one another, the lines stand alone.
void LineMarks::drawPoints(QCPPainter *painter) const
{
    const QCPRange view = m_plot->xAxis->range();
    std::vector<std::span<const LineChart::Point>> inView;
    std::size_t most = 0;
    for (const LineChart::Series &series : m_chart.series) {
        const auto first = std::ranges::lower_bound(series.points, view.lower, {}, &LineChart::Point::x);
        const auto last = std::ranges::upper_bound(series.points, view.upper, {}, &LineChart::Point::x);
        inView.emplace_back(first, series.isTrend ? first : last);
        most = std::max(most, inView.back().size());
    }
    if (double(most) * pointSpace > m_plot->axisRect()->width())
        return;
    for (std::size_t index = 0; index < inView.size(); ++index) {
        const QColor color = m_style.lineColor(qsizetype(index));
        for (const LineChart::Point &point : inView[index]) {
            const bool isHollow = !point.note.isEmpty();
            painter->setPen(QPen(color, 1.5));
            painter->setBrush(isHollow ? m_style.ground : color);
            drawPoint(painter, placeOf(point), m_style.isOnPaper ? index : 0);
        }
    }
}

/// On paper each series has points of its own shape.
void LineMarks::drawPoint(QCPPainter *painter, QPointF place, std::size_t shape)
{
    constexpr double radius = pointSize / 2 - 0.5;
    constexpr double corner = radius * 1.4;
    const std::array<QPolygonF, 3> shapes{
        QPolygonF(QRectF(place.x() - radius, place.y() - radius, 2 * radius, 2 * radius)),
        QPolygonF(
            {place + QPointF(0, -corner), place + QPointF(corner, radius), place + QPointF(-corner, radius)}),
        QPolygonF({place + QPointF(0, -corner), place + QPointF(corner, 0), place + QPointF(0, corner),
                   place + QPointF(-corner, 0)})};
    if (shape % 4 == 0)
        painter->drawEllipse(place, radius, radius);
    else
        painter->drawPolygon(shapes[shape % 4 - 1]);
}

void LineMarks::drawCurrent(QCPPainter *painter) const
{
    if (!m_current)
        return;
    const QRect axes = m_plot->axisRect()->rect();
    const QPointF place = placeOf(m_chart.at(*m_current));
    painter->setPen(QPen(m_style.quiet, 1));
    painter->drawLine(QPointF(place.x(), axes.top()), QPointF(place.x(), axes.bottom()));
    painter->setPen(QPen(m_style.lineColor(m_current->series), 2));
    painter->setBrush(m_style.ground);
    painter->drawEllipse(place, ringSize / 2, ringSize / 2);
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_style.lineColor(m_current->series));
    painter->drawEllipse(place, pointSize / 2, pointSize / 2);
}

std::vector<QString> LineMarks::names() const
{
    std::vector<QString> names;
    for (const LineChart::Series &series : m_chart.series)
        names.push_back(series.name);
    for (const LineChart::Level &level : m_chart.levels)
        names.push_back(level.name);
    return names;
}

int LineMarks::namesWidth(int width) const
{
    const QFontMetrics metrics(m_style.label);
    int widest = 0;
    for (const QString &name : names())
        widest = std::max(widest, metrics.horizontalAdvance(name) + (name.isEmpty() ? 0 : 2));
    return std::min(widest, int(width * mostForNames));
}

/// The height at which a line leaves the view at the right, or ends in it.
std::optional<double> LineMarks::endOf(const LineChart::Series &series) const
{
    const QCPRange view = m_plot->xAxis->range();
    const auto &points = series.points;
    const auto after = std::ranges::upper_bound(points, view.upper, {}, &LineChart::Point::x);
    if (after == points.begin())
        return {};
    const LineChart::Point &last = *(after - 1);
    if (after == points.end() || after->startsAnew)
        return last.x >= view.lower ? std::optional(last.y) : std::nullopt;
    return last.y + (after->y - last.y) * (view.upper - last.x) / (after->x - last.x);
}

/// Each at its height; where two are too near to one another, they move apart.
std::vector<LineMarks::Name> LineMarks::placedNames() const
{
    std::vector<Name> placed;
    for (qsizetype index = 0; index < m_chart.series.size(); ++index) {
        const LineChart::Series &series = m_chart.series[index];
        if (const auto end = endOf(series); end && !series.name.isEmpty())
            placed.push_back({series.name, m_style.lineColor(index), m_plot->yAxis->coordToPixel(*end)});
    }
    for (const LineChart::Level &level : m_chart.levels)
        placed.push_back({level.name, m_style.quiet, m_plot->yAxis->coordToPixel(level.y)});
    std::ranges::stable_sort(placed, {}, &Name::y);
    const double height = QFontMetrics(m_style.label).height();
    const QRect axes = m_plot->axisRect()->rect();
    double least = axes.top() - height / 2;
    for (Name &name : placed) {
        name.y = std::max(name.y, least);
        least = name.y + height;
    }
    double most = axes.bottom();
    for (auto name = placed.rbegin(); name != placed.rend(); ++name) {
        name->y = std::min(name->y, most);
        most = name->y - height;
    }
    return placed;
}

void LineMarks::drawNames(QCPPainter *painter) const
{
    const QFontMetrics metrics(m_style.label);
    const double left = m_plot->axisRect()->right() + gap;
    const double width = m_plot->viewport().width() - left;
    painter->setFont(m_style.label);
    for (const Name &name : placedNames()) {
        painter->setPen(name.color);
        painter->drawText(QRectF(left, name.y - metrics.height() / 2.0, width, metrics.height()),
                          int(Qt::AlignLeft | Qt::AlignVCenter),
                          metrics.elidedText(name.text, Qt::ElideRight, int(width) + 1));
    }
}

/// In place of lines.
void LineMarks::drawWords(QCPPainter *painter) const
{
    painter->setFont(m_style.body);
    painter->setPen(m_style.quiet);
    painter->drawText(m_plot->axisRect()->rect(), int(Qt::AlignCenter | Qt::TextWordWrap), m_chart.nothing);
}
