// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/barplot.h"

#include <qcustomplot.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int gap = 10; ///< between a name, its bar and its figures
constexpr int rightInset = 6;
constexpr int readableName = 120;
constexpr int axisGap = 6;   ///< between the bars and the numbers below them
constexpr int thickest = 20; ///< a bar
constexpr double corner = 2; ///< of a bar
constexpr double bandCorner = 6;
constexpr int tickRoom = 100; ///< for a number on the axis, at least

/// Numbers on the axis as the chart writes them.
class Ticker final : public QCPAxisTicker
{
public:
    explicit Ticker(const BarChart &chart)
        : m_chart(chart)
    {}

protected:
    QString getTickLabel(double tick, const QLocale &, QChar, int) override { return m_chart.axisText(tick); }

private:
    const BarChart &m_chart;
};

} // namespace

/// The rows: the library places them and their axis, names and figures are drawn along.
class BarPlot::Rows final : public QCPBars
{
public:
    Rows(QCPAxis *names, QCPAxis *values, const BarPlot &plot)
        : QCPBars(names, values)
        , m_plot(plot)
    {}

    int current = -1;

    int nameWidth(int width) const;
    int figuresWidth() const;

protected:
    void draw(QCPPainter *painter) override;
    /// Names and figures stand beside the axes.
    QRect clipRect() const override
    {
        const QRect axes = keyAxis()->axisRect()->rect();
        return {0, axes.top(), parentPlot()->viewport().width(), axes.height()};
    }

private:
    int shareBegin(const BarChart::Bar &bar) const;
    void drawRow(QCPPainter *painter, int bar) const;
    void clearFor(QCPPainter *painter, const BarChart::Bar &bar, const QRectF &place) const;
    void drawName(QCPPainter *painter, const QString &name, const QRectF &place) const;
    void drawFigures(QCPPainter *painter, const BarChart::Bar &bar, const QRectF &place) const;

    const BarPlot &m_plot;
};

/// A third of the width at most, or what a name needs: what is longer is cut.
int BarPlot::Rows::nameWidth(int width) const
{
    const QFontMetrics metrics(m_plot.m_style.body);
    int widest = 0;
    for (const BarChart::Bar &bar : m_plot.m_chart.bars)
        widest = std::max(widest, metrics.horizontalAdvance(bar.name) + 1);
    return std::min(widest, std::max(width * 3 / 10, std::min(readableName, width * 4 / 10)));
}

int BarPlot::Rows::figuresWidth() const
{
    const QFontMetrics metrics(m_plot.m_style.body);
    int widest = 0;
    for (const BarChart::Bar &bar : m_plot.m_chart.bars)
        widest = std::max(widest, metrics.horizontalAdvance(bar.amount) + gap +
                                      metrics.horizontalAdvance(bar.share) + 1);
    return widest;
}

void BarPlot::Rows::draw(QCPPainter *painter)
{
    painter->setAntialiasing(true);
    const QCPRange inView = keyAxis()->range();
    for (int bar = 0; bar < int(m_plot.m_chart.bars.size()); ++bar) {
        if (inView.contains(bar))
            drawRow(painter, bar);
    }
    const QRect axes = keyAxis()->axisRect()->rect();
    const double base = valueAxis()->coordToPixel(0);
    painter->setAntialiasing(false);
    painter->setPen(QPen(m_plot.m_style.quiet, 1));
    painter->drawLine(QLineF(base, axes.top(), base, axes.bottom()));
}

void BarPlot::Rows::drawRow(QCPPainter *painter, int bar) const
{
    const ChartStyle &style = m_plot.m_style;
    const BarChart::Bar &of = m_plot.m_chart.bars[bar];
    const double left = keyAxis()->axisRect()->left();
    const double middle = keyAxis()->coordToPixel(bar);
    const double height = m_plot.m_rowHeight;
    const QRectF row(0, middle - height / 2, parentPlot()->viewport().width(), height);
    const double end = valueAxis()->coordToPixel(std::max(0.0, of.value));
    const QRectF figures(end + gap, row.top(), row.right() - end - gap, height);
    clearFor(painter, of, figures);
    painter->setPen(Qt::NoPen);
    if (bar == current) {
        QColor band = style.series;
        band.setAlphaF(0.14F);
        painter->setBrush(band);
        painter->drawRoundedRect(row, bandCorner, bandCorner);
    }
    painter->setBrush(style.series);
    const double thickness = std::min<double>(thickest, height * 0.64);
    if (of.value > 0)
        painter->drawRoundedRect(QRectF(left, middle - thickness / 2, std::max(1.0, end - left), thickness),
                                 corner, corner);
    painter->setFont(style.body);
    drawName(painter, of.name, QRectF(style.inset, row.top(), left - gap - style.inset, height));
    drawFigures(painter, of, figures);
}

int BarPlot::Rows::shareBegin(const BarChart::Bar &bar) const
{
    return QFontMetrics(m_plot.m_style.body).horizontalAdvance(bar.amount) + gap;
}

/// No hairline runs through the figures.
void BarPlot::Rows::clearFor(QCPPainter *painter, const BarChart::Bar &bar, const QRectF &place) const
{
    const QFontMetrics metrics(m_plot.m_style.body);
    const int width = shareBegin(bar) + metrics.horizontalAdvance(bar.share) + 4;
    painter->fillRect(QRectF(place.left() - 2, place.top(), width, place.height()), m_plot.m_style.ground);
}

void BarPlot::Rows::drawName(QCPPainter *painter, const QString &name, const QRectF &place) const
{
    const QFontMetrics metrics(m_plot.m_style.body);
    painter->setPen(m_plot.m_style.text);
    painter->drawText(place, int(Qt::AlignVCenter | Qt::AlignLeft),
                      metrics.elidedText(name, Qt::ElideRight, int(place.width()) + 1));
}

void BarPlot::Rows::drawFigures(QCPPainter *painter, const BarChart::Bar &bar, const QRectF &place) const
{
    const int align = int(Qt::AlignVCenter | Qt::AlignLeft);
    painter->setPen(m_plot.m_style.text);
    painter->drawText(place, align, bar.amount);
    painter->setPen(m_plot.m_style.quiet);
    painter->drawText(place.adjusted(shareBegin(bar), 0, 0, 0), align, bar.share);
}

BarPlot::BarPlot(QWidget *parent)
    : m_plot(new QCustomPlot(parent))
    , m_own(parent ? nullptr : m_plot)
    , m_rows(new Rows(m_plot->yAxis, m_plot->xAxis, *this))
{
    m_plot->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_plot->setPlottingHints({}); // labels kept as pictures would blur on paper
    m_plot->axisRect()->setAutoMargins(QCP::msNone);
    m_plot->yAxis->setRangeReversed(true);
    m_plot->yAxis->setVisible(false);
    QCPAxis *values = m_plot->xAxis;
    values->setTicker(QSharedPointer<QCPAxisTicker>(new Ticker(m_chart)));
    values->setBasePen(Qt::NoPen);
    values->setTickPen(Qt::NoPen);
    values->setSubTicks(false);
    values->setTickLabelPadding(axisGap);
    values->setLabelPadding(2);
    values->grid()->setZeroLinePen(Qt::NoPen);
}

BarPlot::~BarPlot() = default;

QWidget *BarPlot::widget() const
{
    return m_plot;
}

void BarPlot::setChart(const BarChart &chart, const ChartStyle &style)
{
    m_chart = chart;
    m_style = style;
    const double largest = chart.largest();
    QCPAxis *values = m_plot->xAxis;
    values->setRange(0, largest > 0 ? largest : 1);
    values->setTickLabels(largest > 0);
    values->setTickLabelFont(style.label);
    values->setTickLabelColor(style.quiet);
    values->setLabelFont(style.label);
    values->setLabelColor(style.quiet);
    values->setLabel(chart.values);
    QColor hairline = style.line;
    if (style.line == style.text) // on a panel of the user's colour: quieter than what is read
        hairline.setAlphaF(0.25F);
    values->grid()->setPen(QPen(hairline, 1));
    m_plot->setBackground(style.ground);
    m_rows->setData({}, {});
    for (int bar = 0; bar < int(chart.bars.size()); ++bar)
        m_rows->addData(bar, chart.bars[bar].value);
}

void BarPlot::setRows(int first, int count, int height)
{
    m_rowHeight = height;
    m_count = count;
    m_plot->yAxis->setRange(first - 0.5, first + std::max(1, count) - 0.5);
}

void BarPlot::setCurrent(int bar)
{
    m_rows->current = bar;
}

int BarPlot::axisHeight() const
{
    const int label = QFontMetrics(m_style.label).height();
    return axisGap + label + (m_chart.values.isEmpty() ? 0 : label + 4) + 2;
}

int BarPlot::heightOf(int count, int height) const
{
    return count * height + axisHeight();
}

void BarPlot::fit(int width)
{
    QCPAxisRect *axes = m_plot->axisRect();
    const int left = m_style.inset + m_rows->nameWidth(width) + gap;
    const int right = gap + m_rows->figuresWidth() + rightInset;
    axes->setMargins({left, 0, right, axisHeight()});
    const int room = std::max(1, width - left - right);
    // One would be the 0 alone; of two that are meant, no third comes between.
    const auto ticker = m_plot->xAxis->ticker();
    ticker->setTickCount(std::clamp(room / tickRoom, 2, 6));
    ticker->setTickStepStrategy(room < 2 * tickRoom ? QCPAxisTicker::tssMeetTickCount
                                                    : QCPAxisTicker::tssReadability);
}

void BarPlot::draw()
{
    fit(m_plot->width());
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

QPixmap BarPlot::picture(QSize size, double scale)
{
    fit(size.width());
    return m_plot->toPixmap(size.width(), size.height(), scale);
}
