// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/linechartview.h"

#include "shell/charts/lineplot.h"
#include "shell/controls/controls.h"
#include "shell/controls/gridview.h"
#include "shell/controls/linkbutton.h"
#include "shell/controls/rowsmodel.h"
#include "shell/look/theme.h"

#include <QHeaderView>
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
constexpr int columnGap = 24;
constexpr int widestHeading = 160; ///< where its figures need no more
constexpr int tableFrame = 4;      ///< rim and padding

QString asTable()
{
    return u"As a Table"_s;
}

} // namespace

LineChartView::LineChartView(const QString &name, QWidget *parent)
    : ChartView(name, parent)
    , m_plot(std::make_unique<LinePlot>(this))
    , m_asTable(new LinkButton(name + u"AsTable"_s, asTable(), this))
{
    setBesideCaption(m_asTable);
    m_asTable->hide();
    connect(m_asTable, &LinkButton::clicked, this, &LineChartView::switchToTable);
}

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
    m_asTable->setVisible(!chart.isEmpty() || isTable());
    if (isTable())
        fillTable();
    setCurrent(m_current);
}

bool LineChartView::isTable() const
{
    return m_table && !m_table->isHidden();
}

void LineChartView::switchToTable()
{
    if (!m_table)
        makeTable();
    const bool isTable = !this->isTable();
    m_table->setVisible(isTable);
    m_plot->widget()->setVisible(!isTable);
    m_asTable->setText(isTable ? u"As a Chart"_s : asTable());
    if (isTable)
        fillTable();
    arrange();
    isTable ? m_table->setFocus() : setFocus();
}

void LineChartView::makeTable()
{
    m_table = named(new GridView(Qt::UserRole, this), objectName() + u"Table"_s);
    m_table->hide();
    m_table->setSortingEnabled(false);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_table->horizontalHeader()->setSectionsClickable(false);
    m_table->horizontalHeader()->setSortIndicatorShown(false);
    setTabOrder(m_asTable, m_table);
}

/// The newest, or the point that was named, is in sight.
void LineChartView::fillTable()
{
    std::vector<TableColumn<QStringList>> columns;
    const QStringList headings = m_chart.headings();
    for (qsizetype i = 0; i < headings.size(); ++i)
        columns.push_back({headings[i], i == 0 ? Qt::AlignLeft : Qt::AlignRight,
                           [i](const QStringList &row) { return row.value(i); }});
    const QList<QStringList> rows = m_chart.rows();
    auto model = std::make_unique<RowsModel<QStringList>>(std::move(columns));
    model->setRows({rows.begin(), rows.end()});
    m_table->setModel(model.get());
    m_rows = std::move(model);
    m_table->setAccessibleName(m_chart.title);
    const QFontMetrics metrics(TypeScale::strong());
    for (int column = 0; column < int(headings.size()); ++column) {
        int width = std::min(metrics.horizontalAdvance(headings[column]), TypeScale::wide(widestHeading));
        for (const QStringList &row : rows)
            width = std::max(width, metrics.horizontalAdvance(row[column]));
        m_table->setColumnWidth(column, width + columnGap);
    }
    const QString named = m_current ? m_chart.acrossText(m_chart.at(*m_current).x) : QString();
    int row = int(rows.size()) - 1;
    while (!named.isEmpty() && row > 0 && rows[row].first() != named)
        --row;
    if (row >= 0)
        m_table->setCurrentIndex(m_rows->index(row, 0));
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
    if (!m_table)
        return;
    // Whole rows of the table.
    const int heads = m_table->horizontalHeader()->sizeHint().height() + 2 * tableFrame;
    const int rows = std::max(1, (height() - top - frame - heads) / GridView::rowHeight());
    m_table->setGeometry(frame, top, std::max(1, width() - 2 * frame), heads + rows * GridView::rowHeight());
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
