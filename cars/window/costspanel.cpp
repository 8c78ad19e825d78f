// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/costspanel.h"

#include "cars/model/carneeds.h"
#include "cars/model/costwords.h"
#include "cars/model/fuellines.h"
#include "cars/window/carcharts.h"
#include "cars/window/opencar.h"
#include "shell/charts/barchartview.h"
#include "shell/charts/linechartview.h"
#include "shell/controls/figurestrip.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/titleline.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int mostYearsInView = 5;
constexpr int fewestYearsInView = 2; ///< the present one and the same days of the year before
constexpr int leastChartHeight = 210;
/// What stands above, below and in the chart.
constexpr int linesAroundTable = 10;
constexpr int restAroundTable = 348;
constexpr int linesBelow = 3; ///< of the chart: the buttons
constexpr int restAround = 76;
} // namespace

CostsPanel::CostsPanel(const CarDesk &desk)
    : TaskPanel(u"costsPanel"_s, {})
    , m_desk(desk)
    , m_figures(new FigureStrip(u"costsFigures"_s, this))
    , m_charts(named(new QComboBox(this), u"costsChart"_s))
    , m_stack(new QStackedWidget(this))
    , m_lines(new LineChartView(u"costsLines"_s, m_stack))
    , m_bars(new BarChartView(u"costsBars"_s, m_stack))
    , m_table(named(new QTableView(this), u"costsTable"_s))
{
    m_charts->addItems(
        {u"Cost by month"_s, u"Cost by kind"_s, u"Cost by year"_s, u"Consumption"_s, u"Odometer"_s});
    m_charts->setAccessibleName(u"What the chart shows"_s);
    titleLine().addAtRight(m_charts);
    m_stack->addWidget(m_lines);
    m_stack->addWidget(m_bars);
    makeTable();
    auto *work = new QWidget(this);
    m_rows = new QVBoxLayout(work);
    m_rows->setContentsMargins({});
    m_rows->setSpacing(12);
    m_rows->addWidget(m_figures);
    m_rows->addWidget(makeChartPanel(), 1);
    m_rows->addWidget(m_table);
    setContent(work);
    connect(addButton(u"costsPrint"_s, u"&Print Costs"_s), &QPushButton::clicked, this,
            &CostsPanel::printWanted);
    setLeaveButton(u"costsClose"_s, u"C&lose"_s);
    setFocusProxy(m_charts);
    connect(m_charts, &QComboBox::currentIndexChanged, this, &CostsPanel::showChart);
    connect(&m_desk.car, &OpenCar::changed, this, [this] {
        if (isVisible())
            refresh();
    });
}

/// With a ground of its own, on which the chart has its colours whatever that of the panel is.
QWidget *CostsPanel::makeChartPanel()
{
    auto *panel = new PanelFrame(this);
    panel->setPalette(Theme::of(this).panelPalette());
    m_stack->setMinimumHeight(leastChartHeight);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(16, 2, 16, 2);
    layout->addWidget(m_stack);
    return panel;
}

void CostsPanel::makeTable()
{
    std::vector<TableColumn<Row>> columns;
    const QStringList headings = CostWords::headings(u"Year"_s, m_desk.car.unit());
    for (qsizetype i = 0; i < headings.size(); ++i)
        columns.push_back({headings[i], i == 0 ? Qt::AlignLeft : Qt::AlignRight,
                           [i](const Row &row) { return row.value(i); }});
    m_model = new RowsModel<Row>(std::move(columns), this);
    m_table->setModel(m_model);
    m_table->setAccessibleName(u"Costs of the years"_s);
    setGridRows(m_table);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->horizontalHeader()->setMinimumSectionSize(1);
    m_table->viewport()->installEventFilter(this);
}

void CostsPanel::setChart(Chart chart)
{
    m_charts->setCurrentIndex(chart);
}

void CostsPanel::refresh()
{
    const DateStyle style = m_desk.program.state.dateStyle;
    const CarCosts costs(m_desk.car.record(), style, m_desk.program.clock.today());
    showFigures(costs);
    showYears(costs);
    showChart();
}

void CostsPanel::showFigures(const CarCosts &costs)
{
    const CostSums all = costs.all();
    const auto month = costs.perMonth();
    if (month)
        titleLine().setTitle(CostWords::perMonth(*month, m_desk.program.clock.today()),
                             HistoryLines::money(*month) + u" a month"_s);
    else
        setTitle(u"What the car costs"_s);
    QList<FigureStrip::Figure> figures;
    for (const CostKind kind : costKinds)
        figures.append({CostWords::kind(kind), HistoryLines::moneyOrNone(all.of(kind))});
    figures.append({u"Together"_s, HistoryLines::moneyOrNone(all.total())});
    if (const auto each = all.perDistance())
        figures.append(
            {u"A %1 costs"_s.arg(FuelLines::distance(m_desk.car.unit())), HistoryLines::money(*each)});
    m_figures->setFigures(figures);
}

/// Each year, and under the present one the same days of the year before it.
void CostsPanel::showYears(const CarCosts &costs)
{
    std::vector<Row> rows;
    const DateStyle style = m_desk.program.state.dateStyle;
    const int present = m_desk.program.clock.today().year();
    for (const int year : costs.years()) {
        if (year != present) {
            const bool isThereInPart = year == present - 1 && !rows.empty();
            rows.push_back(CostWords::row(isThereInPart ? CostWords::wholeYear(year) : QString::number(year),
                                          costs.sums(QDate(year, 1, 1), QDate(year, 12, 31))));
            continue;
        }
        const CarCosts::YearAgainstLast both = costs.yearAgainstLast(year);
        rows.push_back(CostWords::row(CostWords::year(both, style, false), both.sums));
        if (both.until != QDate(year, 12, 31))
            rows.push_back(CostWords::row(CostWords::year(both, style, true), both.before));
    }
    m_model->setRows(std::move(rows));
    placeTable();
    shareWidth();
}

/// As many years as leave the chart its room; in a low window the chart alone, which has the years too.
void CostsPanel::placeTable()
{
    const int line = QFontMetrics(TypeScale::body()).height();
    const int room = height() - restAroundTable - linesAroundTable * line;
    const int rows =
        std::min({std::max(0, room) / ListRowDelegate::rowHeight(), m_model->rowCount(), mostYearsInView});
    m_table->setVisible(rows >= std::min(m_model->rowCount(), fewestYearsInView) && rows > 0);
    m_table->ensurePolished();
    m_table->setFixedHeight(m_table->horizontalHeader()->height() + rows * ListRowDelegate::rowHeight() +
                            2 * m_table->frameWidth());
    placeFigures(line);
}

/// Above the chart, or below it where it would not be whole under them.
void CostsPanel::placeFigures(int line)
{
    const int chart = std::max(leastChartHeight, m_stack->minimumSizeHint().height());
    const int others = titleLine().sizeHint().height() + m_figures->sizeHint().height();
    const int place = height() < chart + others + linesBelow * line + restAround ? 1 : 0;
    if (m_rows->indexOf(m_figures) == place)
        return;
    m_rows->removeWidget(m_figures);
    m_rows->insertWidget(place, m_figures);
}

void CostsPanel::resizeEvent(QResizeEvent *event)
{
    placeTable();
    TaskPanel::resizeEvent(event);
}

/// Each column has room for what stands in it; the columns share the rest.
void CostsPanel::shareWidth()
{
    const int count = m_model->columnCount();
    std::vector<int> widths;
    int spare = m_table->viewport()->width();
    for (int column = 0; column < count; ++column) {
        const int content = static_cast<QAbstractItemView *>(m_table)->sizeHintForColumn(column);
        widths.push_back(std::max(content, m_table->horizontalHeader()->sectionSizeHint(column)));
        spare -= widths.back();
    }
    for (int column = 0; column < count; ++column)
        m_table->setColumnWidth(column, widths[std::size_t(column)] + std::max(0, spare) / count);
}

bool CostsPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_table->viewport() && event->type() == QEvent::Resize)
        shareWidth();
    return TaskPanel::eventFilter(watched, event);
}

void CostsPanel::showChart()
{
    const CarRecord &car = m_desk.car.record();
    const DistanceUnit unit = car.sheet.unit;
    const DateStyle style = m_desk.program.state.dateStyle;
    const QDate today = m_desk.program.clock.today();
    const auto chart = Chart(m_charts->currentIndex());
    m_stack->setCurrentWidget(chart == Kinds || chart == Years ? static_cast<QWidget *>(m_bars) : m_lines);
    switch (chart) {
    case Months:
        return m_lines->setChart(CarCharts::costs(CarCosts(car, style, today), style));
    case Kinds:
        return m_bars->setChart(CarCharts::kinds(CarCosts(car, style, today)));
    case Years:
        return m_bars->setChart(CarCharts::years(CarCosts(car, style, today)));
    case Consumption:
        return m_lines->setChart(CarCharts::consumption(FuelFigures(car.fuel, style), unit, style));
    case Odometer:
        return m_lines->setChart(CarCharts::odometer(CarNeeds::drivingLog(car, style, today), unit, style));
    }
}
