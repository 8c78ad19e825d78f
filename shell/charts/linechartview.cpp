// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/linechartview.h"

#include "shell/charts/lineplot.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double nearer = 0.7;
constexpr double step = 0.25; ///< of what is in view, with a key
constexpr double wheelStep = 120;
constexpr int wantedWidth = 640;
constexpr int wantedHeight = 280;

} // namespace

LineChartView::LineChartView(const QString &name, QWidget *parent)
    : ChartView(name, parent)
    , m_plot(std::make_unique<LinePlot>(this))
{}

LineChartView::~LineChartView() = default;

/// The part in view and the point that is named stay where the series have the same days.
void LineChartView::setChart(const LineChart &chart)
{
    const bool isSamePoint = m_current && m_current->series < chart.series.size() &&
                             m_current->point < chart.series[m_current->series].points.size() &&
                             chart.at(*m_current).x == m_chart.at(*m_current).x;
    if (!isSamePoint)
        m_current.reset();
    m_chart = chart;
    setHead(chart.title, chart.caption, chart.description());
    restyle();
    arrange();
    setCurrent(m_current);
}

void LineChartView::setStyle(const ChartStyle &style)
{
    const LinePlot::Range whole = m_plot->whole();
    const LinePlot::Range view = m_plot->view();
    m_plot->setChart(m_chart, style);
    m_inset = style.inset;
    if (m_plot->whole() == whole)
        m_plot->setView(view);
    m_plot->setCurrent(m_current);
}

void LineChartView::arrange()
{
    placeHead(width() - 2 * frame);
    const int top = headHeight();
    // The axis' name stands below the title.
    m_plot->widget()->setGeometry(frame - m_inset, top, std::max(1, width() - 2 * frame + m_inset),
                                  std::max(1, height() - top - frame));
    m_plot->draw();
}

void LineChartView::setCurrent(std::optional<LineChart::Spot> spot)
{
    const bool isOther = spot != m_current;
    m_current = spot;
    if (spot) {
        const double x = m_chart.at(*spot).x;
        const LinePlot::Range view = m_plot->view();
        if (x < view.from || x > view.to)
            pan(x - (x < view.from ? view.from : view.to));
    }
    refresh();
    if (isOther)
        emit currentChanged();
}

/// The words say what is named, or else which part is shown.
void LineChartView::refresh()
{
    const LinePlot::Range view = m_plot->view();
    if (m_current)
        setReading(m_chart.textOf(*m_current));
    else if (isZoomed())
        setReading(m_chart.acrossText(std::ceil(view.from)) + u" to "_s +
                   m_chart.acrossText(std::floor(view.to)) + u"; the key 0 shows all"_s);
    else
        setReading({});
    m_plot->setCurrent(m_current);
    m_plot->draw();
}

QPoint LineChartView::placeOf(const LineChart::Spot &spot) const
{
    return m_plot->widget()->pos() + m_plot->placeOf(spot).toPoint();
}

std::optional<LineChart::Spot> LineChartView::spotAt(QPoint place) const
{
    return m_plot->spotAt(place - m_plot->widget()->pos());
}

void LineChartView::zoom(double factor, double x)
{
    const LinePlot::Range view = m_plot->view();
    m_plot->setView({x - (x - view.from) * factor, x + (view.to - x) * factor});
    refresh();
}

void LineChartView::pan(double by)
{
    const LinePlot::Range view = m_plot->view();
    m_plot->setView({view.from + by, view.to + by});
}

void LineChartView::showAll()
{
    m_plot->setView(m_plot->whole());
    refresh();
}

bool LineChartView::isZoomed() const
{
    return m_plot->view().width() < m_plot->whole().width() * (1 - 1e-9);
}

double LineChartView::middle() const
{
    const LinePlot::Range view = m_plot->view();
    return m_current ? m_chart.at(*m_current).x : (view.from + view.to) / 2;
}

QSize LineChartView::sizeHint() const
{
    return {wantedWidth, headHeight() + wantedHeight};
}

QSize LineChartView::minimumSizeHint() const
{
    const QSize least = m_plot->leastSize();
    return {least.width(), headHeight() + least.height() + frame};
}

/// The tool tip of a point stands where the mouse is.
bool LineChartView::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const auto spot = spotAt(help->pos());
    QToolTip::showText(help->globalPos(), spot ? m_chart.textOf(*spot) : QString(), this);
    return true;
}

/// The last point of the first line that has one: what is newest.
void LineChartView::nameFirst()
{
    for (qsizetype series = 0; !m_current && series < m_chart.series.size(); ++series)
        setCurrent(m_plot->nearest(series, m_plot->view().to));
}

/// Left and right go along the line, up and down to the lines beside it.
std::optional<LineChart::Spot> LineChartView::beside(int key) const
{
    if (!m_current)
        return {};
    LineChart::Spot spot = *m_current;
    const qsizetype last = m_chart.series[spot.series].points.size() - 1;
    switch (key) {
    case Qt::Key_Left:
        spot.point = std::max<qsizetype>(0, spot.point - 1);
        return spot;
    case Qt::Key_Right:
        spot.point = std::min(last, spot.point + 1);
        return spot;
    case Qt::Key_Home:
        return LineChart::Spot{spot.series, 0};
    case Qt::Key_End:
        return LineChart::Spot{spot.series, last};
    default:
        break;
    }
    const int way = key == Qt::Key_Up ? -1 : 1;
    for (qsizetype series = spot.series + way; series >= 0 && series < m_chart.series.size(); series += way) {
        if (const auto found = m_plot->nearest(series, m_chart.at(spot).x))
            return found;
    }
    return spot;
}

void LineChartView::keyPressEvent(QKeyEvent *event)
{
    const double width = m_plot->view().width();
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_current ? setCurrent(beside(event->key())) : nameFirst();
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        pan(event->key() == Qt::Key_PageUp ? -step * width : step * width);
        nameNothing();
        return;
    case Qt::Key_Plus:
        zoom(nearer, middle());
        return;
    case Qt::Key_Minus:
        zoom(1 / nearer, middle());
        return;
    case Qt::Key_0:
        showAll();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

/// A press on no point begins to move what is in view.
void LineChartView::mousePressEvent(QMouseEvent *event)
{
    m_dragged = event->position().toPoint();
    setCurrent(spotAt(m_dragged));
}

void LineChartView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    if (event->buttons() & Qt::LeftButton && isZoomed()) {
        pan(m_plot->acrossAt(m_dragged.x()) - m_plot->acrossAt(place.x()));
        m_dragged = place;
        refresh();
        return;
    }
    const auto spot = spotAt(place);
    if (spot != m_current && (spot || !hasFocus()))
        setCurrent(spot);
}

/// Where the chart has not the focus, the wheel goes on scrolling what it stands on.
void LineChartView::wheelEvent(QWheelEvent *event)
{
    if (!hasFocus() && !(event->modifiers() & Qt::ControlModifier)) {
        QWidget::wheelEvent(event);
        return;
    }
    const double x = m_plot->acrossAt(event->position().x() - m_plot->widget()->x());
    const double steps = event->angleDelta().y() / wheelStep;
    zoom(std::pow(nearer, steps), x);
    event->accept();
}
