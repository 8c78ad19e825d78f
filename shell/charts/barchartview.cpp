// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/barchartview.h"

#include "shell/charts/barplot.h"
#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int fewestRows = 3;
constexpr int leastWidth = 320;
constexpr int mostRowHeight = 40;
constexpr int barWidth = 14;

} // namespace

BarChartView::BarChartView(const QString &name, QWidget *parent)
    : ChartView(name, parent)
    , m_plot(std::make_unique<BarPlot>(this))
    , m_bar(named(new QScrollBar(Qt::Vertical, this), name + u"Scroll"_s))
{
    m_bar->setAccessibleName(u"Bars in view"_s);
    connect(m_bar, &QScrollBar::valueChanged, this, &BarChartView::scroll);
}

BarChartView::~BarChartView() = default;

void BarChartView::setChart(const BarChart &chart)
{
    const bool isSameBar = m_current >= 0 && m_current < chart.bars.size() &&
                           m_chart.bars[m_current].name == chart.bars[m_current].name;
    m_chart = chart;
    setHead(chart.title, chart.caption, chart.description());
    m_current = isSameBar ? m_current : -1;
    restyle();
    arrange();
    setCurrent(m_current);
}

void BarChartView::setCurrent(int bar)
{
    m_current = bar >= 0 && bar < count() ? bar : -1;
    if (m_current >= 0)
        m_bar->setValue(std::clamp(m_bar->value(), m_current - m_inView + 1, m_current));
    setReading(m_current >= 0 ? m_chart.bars[m_current].text() : QString());
    m_plot->setCurrent(m_current);
    m_plot->draw();
}

QSize BarChartView::sizeHint() const
{
    const int rowHeight = ChartStyle::onScreen(this).rowHeight;
    const int rows = std::max(fewestRows, count());
    return {2 * leastWidth, headHeight() + m_plot->heightOf(rows, rowHeight) + frame};
}

int BarChartView::mostHeight() const
{
    return headHeight() + m_plot->heightOf(std::max(fewestRows, count()), mostRowHeight) + frame;
}

QSize BarChartView::minimumSizeHint() const
{
    const int rowHeight = ChartStyle::onScreen(this).rowHeight;
    return {leastWidth, headHeight() + m_plot->heightOf(fewestRows, rowHeight) + frame};
}

void BarChartView::setStyle(const ChartStyle &style)
{
    m_plot->setChart(m_chart, style);
}

/// Whole bars; where there is room for more, they stand wider apart, up to a point.
void BarChartView::arrange()
{
    const int top = headHeight();
    const ChartStyle style = ChartStyle::onScreen(this);
    const int least = style.rowHeight;
    const int room = height() - top - frame - m_plot->heightOf(0, least);
    const int rowHeight = count() > 0 ? std::clamp(room / count(), least, mostRowHeight) : least;
    m_inView = std::clamp(room / rowHeight, 1, std::max(1, count()));
    const bool isWhole = m_inView >= count();
    const int width = this->width() - 2 * frame - (isWhole ? 0 : barWidth);
    placeHead(width);
    // The names stand below the title.
    m_plot->widget()->setGeometry(frame - style.inset, top, width + style.inset,
                                  m_plot->heightOf(m_inView, rowHeight));
    m_bar->setGeometry(frame + width, top, barWidth, m_inView * rowHeight);
    m_bar->setVisible(!isWhole);
    m_bar->setRange(0, std::max(0, count() - m_inView));
    m_bar->setPageStep(m_inView);
    m_plot->setRows(m_bar->value(), m_inView, rowHeight);
    m_plot->draw();
}

void BarChartView::scroll()
{
    m_plot->setRows(m_bar->value(), m_inView, m_plot->rowHeight());
    m_plot->draw();
}

QRect BarChartView::barRect(int bar) const
{
    const int row = bar - m_bar->value();
    if (bar < 0 || bar >= count() || row < 0 || row >= m_inView)
        return {};
    const QRect plot = m_plot->widget()->geometry();
    return {plot.x(), plot.y() + row * m_plot->rowHeight(), plot.width(), m_plot->rowHeight()};
}

int BarChartView::barAt(QPoint place) const
{
    for (int bar = m_bar->value(); bar < m_bar->value() + m_inView; ++bar) {
        if (barRect(bar).contains(place))
            return bar;
    }
    return -1;
}

/// The tool tip of a bar stands where the mouse is.
bool BarChartView::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int bar = barAt(help->pos());
    QToolTip::showText(help->globalPos(), bar >= 0 ? m_chart.bars[bar].text() : QString(), this,
                       barRect(bar));
    return true;
}

void BarChartView::keyPressEvent(QKeyEvent *event)
{
    const int last = count() - 1;
    int bar = m_current;
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        bar = m_current - 1;
        break;
    case Qt::Key_Down:
    case Qt::Key_Right:
        bar = m_current + 1;
        break;
    case Qt::Key_PageUp:
        bar = m_current - m_inView;
        break;
    case Qt::Key_PageDown:
        bar = m_current + m_inView;
        break;
    case Qt::Key_Home:
        bar = 0;
        break;
    case Qt::Key_End:
        bar = last;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (last >= 0)
        setCurrent(std::clamp(bar, 0, last));
}

void BarChartView::mouseMoveEvent(QMouseEvent *event)
{
    if (const int bar = barAt(event->position().toPoint()); bar != m_current && bar >= 0)
        setCurrent(bar);
}

void BarChartView::mousePressEvent(QMouseEvent *event)
{
    setCurrent(barAt(event->position().toPoint()));
}

void BarChartView::wheelEvent(QWheelEvent *event)
{
    if (m_bar->isHidden())
        QWidget::wheelEvent(event);
    else
        QCoreApplication::sendEvent(m_bar, event);
}

void BarChartView::nameFirst()
{
    if (m_current < 0)
        setCurrent(0);
}
