// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/lineplot.h"

#include "shell/charts/chartticks.h"
#include "shell/charts/linemarks.h"

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int gap = 10;
constexpr int axisGap = 6;
constexpr int topRoom = 10; ///< above the highest tick, for half of its number
constexpr int tickHeight = 46;
constexpr int leastTickHeight = 24; ///< where a rougher axis would leave much of the height empty
constexpr double leastShare = 0.7;
constexpr int leastHeight = 80;
constexpr int tickSpace = 22; ///< between two words of the axis across
constexpr int numberRoom = 90;
constexpr double reach = 24;
constexpr double leastAir = 0.1; ///< below the lowest value, of a step
constexpr double air = 0.02;     ///< at both ends, of the whole
constexpr double fewestDays = 4;
constexpr double deepestZoom = 1000;
constexpr qsizetype manyPoints = 1000;

} // namespace

/// Ticks at the multiples of a step that the plot chooses.
class LinePlot::Numbers final : public QCPAxisTicker
{
public:
    explicit Numbers(const LineChart::Axis &axis)
        : m_axis(axis)
    {}

    double step = 1;

protected:
    double getTickStep(const QCPRange &) override { return step; }
    QString getTickLabel(double tick, const QLocale &, QChar, int) override
    {
        return m_axis.tickText(tick, step);
    }

private:
    const LineChart::Axis &m_axis;
};

/// Ticks at days, months or years, or at points.
class LinePlot::DayTicks final : public QCPAxisTicker
{
public:
    explicit DayTicks(const LineChart &chart)
        : m_chart(chart)
    {}

    ChartTicks::Days days;
    QList<double> points;

protected:
    double getTickStep(const QCPRange &) override { return 1; }
    QVector<double> createTickVector(double, const QCPRange &range) override
    {
        return m_chart.ticksAtPoints ? points : days.between(range.lower, range.upper);
    }
    QVector<QString> createLabelVector(const QVector<double> &ticks, const QLocale &, QChar, int) override
    {
        if (!m_chart.ticksAtPoints)
            return days.labels(ticks, m_chart.style);
        QStringList labels;
        for (const double tick : ticks)
            labels << m_chart.acrossText(tick);
        return labels;
    }

private:
    const LineChart &m_chart;
};

LinePlot::LinePlot(QWidget *parent)
    : m_plot(new QCustomPlot(parent))
    , m_own(parent ? nullptr : m_plot)
    , m_marks(new LineMarks(m_plot, m_chart, m_style))
{
    m_up.reset(new Numbers(m_chart.up));
    m_across.reset(new Numbers(m_chart.across));
    m_days.reset(new DayTicks(m_chart));
    m_plot->yAxis->setTicker(m_up);
    m_plot->xAxis->setTicker(m_across);
    m_plot->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_plot->axisRect()->setAutoMargins(QCP::msNone);
    for (QCPAxis *axis : {m_plot->xAxis, m_plot->yAxis}) {
        axis->setSubTicks(false);
        axis->setTickLabelPadding(axisGap);
        axis->setLabelPadding(2);
        axis->grid()->setZeroLinePen(Qt::NoPen);
    }
    m_plot->yAxis->setBasePen(Qt::NoPen);
    m_plot->yAxis->setTickPen(Qt::NoPen);
    m_plot->xAxis->grid()->setVisible(false);
    m_plot->xAxis->setTickLength(0, 4);
}

LinePlot::~LinePlot() = default;

QWidget *LinePlot::widget() const
{
    return m_plot;
}

void LinePlot::setChart(const LineChart &chart, const ChartStyle &style)
{
    m_chart = chart;
    m_style = style;
    m_plot->clearGraphs();
    Range whole{std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()};
    qsizetype count = 0;
    for (qsizetype index = 0; index < chart.series.size(); ++index) {
        addSeries(index);
        count += chart.series[index].points.size();
        for (const LineChart::Point &point : chart.series[index].points)
            whole = {std::min(whole.from, point.x), std::max(whole.to, point.x)};
    }
    if (chart.forecastStart())
        whole.to = std::max(whole.to, chart.forecast->to);
    // Lines of many points are drawn piece by piece, ten times as fast; with few, the corners would show it.
    // No other hint: labels kept as pictures would blur on paper.
    m_plot->setPlottingHints(count > manyPoints ? QCP::phFastPolylines : QCP::PlottingHints());
    if (whole.from > whole.to)
        whole = {0, 0};
    const double width = std::max(whole.width(), chart.kind == LineChart::Across::Days ? fewestDays : 1);
    const double middle = (whole.from + whole.to) / 2;
    m_whole = {std::min(whole.from, middle - width / 2) - air * width,
               std::max(whole.to, middle + width / 2) + air * width};
    m_view = m_whole;
    this->style();
}

void LinePlot::addSeries(qsizetype index)
{
    const QList<LineChart::Point> &points = m_chart.series[index].points;
    QCPGraph *line = m_plot->addGraph();
    line->setAntialiased(true);
    line->setPen(m_style.linePen(index));
    line->setScatterStyle(QCPScatterStyle::ssNone);
    QVector<double> across;
    QVector<double> up;
    across.reserve(points.size());
    up.reserve(points.size());
    for (const LineChart::Point &point : points) {
        if (point.startsAnew && !across.isEmpty()) {
            across << point.x;
            up << std::numeric_limits<double>::quiet_NaN();
        }
        across << point.x;
        up << point.y;
    }
    line->setData(across, up, true);
}

void LinePlot::style()
{
    QColor hairline = m_style.line;
    if (m_style.line == m_style.text) // on a panel of the user's colour: quieter than what is read
        hairline.setAlphaF(0.25F);
    for (QCPAxis *axis : {m_plot->xAxis, m_plot->yAxis}) {
        axis->setTickLabelFont(m_style.label);
        axis->setTickLabelColor(m_style.quiet);
        axis->setLabelFont(m_style.label);
        axis->setLabelColor(m_style.quiet);
        axis->setVisible(!m_chart.isEmpty());
    }
    m_plot->yAxis->grid()->setVisible(!m_chart.isEmpty());
    m_plot->yAxis->grid()->setPen(QPen(hairline, 1));
    m_plot->xAxis->setBasePen(QPen(m_style.quiet, 1));
    m_plot->xAxis->setTickPen(QPen(m_style.quiet, 1));
    m_plot->xAxis->setLabel(m_chart.across.name);
    m_plot->setBackground(m_style.ground);
    const bool hasDays = m_chart.kind == LineChart::Across::Days;
    m_plot->xAxis->setTicker(hasDays ? m_days.staticCast<QCPAxisTicker>() : m_across);
}

void LinePlot::setView(Range view)
{
    const double days = m_chart.kind == LineChart::Across::Days ? fewestDays : 0;
    const double least = std::min(m_whole.width(), std::max(days, m_whole.width() / deepestZoom));
    const double width = std::clamp(view.width(), least, m_whole.width());
    const double middle = (view.from + view.to) / 2;
    const double from = std::clamp(middle - width / 2, m_whole.from, m_whole.to - width);
    m_view = {from, from + width};
}

void LinePlot::setCurrent(std::optional<Spot> spot)
{
    m_marks->setCurrent(spot);
}

/// Of the points in view and of the lines that leave it; levels are always in view.
LinePlot::Range LinePlot::valuesInView() const
{
    Range values{std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()};
    const auto take = [&](double y) { values = {std::min(values.from, y), std::max(values.to, y)}; };
    for (const LineChart::Series &series : m_chart.series) {
        const auto &points = series.points;
        auto first = std::ranges::lower_bound(points, m_view.from, {}, &LineChart::Point::x);
        auto last = std::ranges::upper_bound(points, m_view.to, {}, &LineChart::Point::x);
        if (first != points.begin())
            --first;
        if (last != points.end())
            ++last;
        std::for_each(first, last, [&](const LineChart::Point &point) { take(point.y); });
    }
    for (const LineChart::Level &level : m_chart.levels)
        take(level.y);
    if (m_chart.isFromZero)
        take(0);
    if (m_chart.forecastStart())
        take(m_chart.forecast->y);
    if (values.from > values.to)
        return {0, 1};
    if (values.width() > 0)
        return values;
    const double around = std::max(1.0, std::abs(values.from) * 0.1);
    return {values.from - around, values.to + around};
}

/// From one tick to another, so that the highest and the lowest value stand between numbers.
void LinePlot::fitUp(int height)
{
    const Range values = valuesInView();
    const auto share = [&values](double step) { // of the height that has values, from one tick to another
        return values.width() /
               ((std::ceil(values.to / step - 1e-9) - std::floor(values.from / step + 1e-9)) * step);
    };
    int most = std::clamp(height / tickHeight, 2, 8);
    double step = ChartTicks::step(values.width(), most);
    while (share(step) < leastShare && height / ++most >= leastTickHeight)
        step = ChartTicks::step(values.width(), most);
    double from = std::floor(values.from / step + 1e-9) * step;
    // A level does not lie on the axis; but there is nothing below 0 where no value is.
    if (from != 0 && values.from - from < leastAir * step)
        from -= step;
    const double to = std::ceil(values.to / step - 1e-9) * step;
    m_up->step = step;
    m_plot->yAxis->setRange(from, to > from ? to : from + step);
}

void LinePlot::fitAcross(int width)
{
    m_plot->xAxis->setRange(m_view.from, m_view.to);
    const QFontMetrics metrics(m_style.label);
    if (m_chart.kind == LineChart::Across::Numbers) {
        m_across->step = ChartTicks::step(m_view.width(), std::clamp(width / numberRoom, 2, 12));
        return;
    }
    if (m_chart.ticksAtPoints && !m_chart.series.isEmpty()) {
        const double each = metrics.horizontalAdvance(m_chart.acrossText(m_view.to)) + tickSpace;
        m_days->points = ChartTicks::atPoints(m_chart.series.first().points, m_view.from, m_view.to,
                                              each * m_view.width() / width);
        // A part between two points has its days told all the same.
        if (m_days->points.size() < 2 && m_view.width() < m_whole.width())
            m_days->points =
                ChartTicks::Days::fitting(width / m_view.width(), each, each).between(m_view.from, m_view.to);
        return;
    }
    m_days->days =
        ChartTicks::Days::fitting(width / m_view.width(), metrics.horizontalAdvance(u"2026"_s) + tickSpace,
                                  metrics.horizontalAdvance(u"30 Nov"_s) + tickSpace);
}

/// Two lines of words for days with their years, under them the axis' name.
int LinePlot::axisHeight() const
{
    const int label = QFontMetrics(m_style.label).height();
    const bool hasYears = m_chart.kind == LineChart::Across::Days && !m_chart.ticksAtPoints;
    const int lines = hasYears ? 2 : 1;
    return axisGap + lines * label + (m_chart.across.name.isEmpty() ? 0 : label + 4) + 8;
}

void LinePlot::fit(QSize size)
{
    const QFontMetrics metrics(m_style.label);
    const int up = metrics.height() + 4; // the name of the values
    const int bottom = axisHeight();
    fitUp(size.height() - up - topRoom - bottom);
    const QCPRange values = m_plot->yAxis->range();
    const double step = m_up->step;
    int widest = 0;
    for (const double value : {values.lower, values.upper, values.upper - step})
        widest = std::max(widest, metrics.horizontalAdvance(m_chart.up.tickText(value, step)));
    const int left = m_style.inset + widest + axisGap + 2;
    const int names = m_marks->namesWidth(size.width());
    const int right = names > 0 ? names + gap : gap;
    m_plot->axisRect()->setMargins({left, up + topRoom, right, bottom});
    fitAcross(std::max(1, size.width() - left - right));
}

void LinePlot::draw()
{
    fit(m_plot->size());
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

QPixmap LinePlot::picture(QSize size, double scale)
{
    fit(size);
    return m_plot->toPixmap(size.width(), size.height(), scale);
}

QPointF LinePlot::placeOf(const Spot &spot) const
{
    const LineChart::Point &point = m_chart.at(spot);
    return {m_plot->xAxis->coordToPixel(point.x), m_plot->yAxis->coordToPixel(point.y)};
}

double LinePlot::acrossAt(double x) const
{
    return m_plot->xAxis->pixelToCoord(x);
}

std::optional<LinePlot::Spot> LinePlot::spotAt(QPointF place) const
{
    std::optional<Spot> found;
    double least = reach;
    for (qsizetype index = 0; index < m_chart.series.size(); ++index) {
        const auto &points = m_chart.series[index].points;
        const double from = std::max(m_view.from, acrossAt(place.x() - reach));
        const double to = std::min(m_view.to, acrossAt(place.x() + reach));
        auto point = std::ranges::lower_bound(points, from, {}, &LineChart::Point::x);
        for (; point != points.end() && point->x <= to; ++point) {
            const Spot spot{index, point - points.begin()};
            const double distance = QLineF(placeOf(spot), place).length();
            if (distance < least) {
                least = distance;
                found = spot;
            }
        }
    }
    return found;
}

std::optional<LinePlot::Spot> LinePlot::nearest(qsizetype series, double x) const
{
    if (series < 0 || series >= m_chart.series.size() || m_chart.series[series].points.isEmpty())
        return {};
    const auto &points = m_chart.series[series].points;
    const auto after = std::ranges::lower_bound(points, x, {}, &LineChart::Point::x);
    const bool isBefore =
        after == points.end() || (after != points.begin() && x - (after - 1)->x < after->x - x);
    return Spot{series, (isBefore ? after - 1 : after) - points.begin()};
}

QSize LinePlot::leastSize() const
{
    const QFontMetrics metrics(m_style.label);
    return {320, axisHeight() + metrics.height() + topRoom + leastHeight};
}
