// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/graphview.h"

#include "shell/charts/linechartview.h"
#include "shell/controls/controls.h"
#include "shell/controls/figurestrip.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/lowwindow.h"
#include "shell/controls/titleline.h"
#include "shell/program/program.h"
#include "weight/model/weightchart.h"
#include "weight/model/weightfigures.h"
#include "weight/model/weightnumbers.h"
#include "weight/model/weightperiods.h"
#include "weight/model/weightwords.h"
#include "weight/window/openperson.h"
#include "weight/window/windowlines.h"

#include <QComboBox>
#include <QHeaderView>
#include <QStackedWidget>
#include <QTableView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString differenceOr(std::optional<double> difference)
{
    return difference ? WeightNumbers::difference(*difference) : u"-"_s;
}

/// Of a change by the week: less than a tenth of a pound or kilogram is none.
QLatin1StringView signOf(std::optional<double> change)
{
    if (!change)
        return {};
    const QString text = WeightNumbers::difference(*change);
    return text == u'0' ? "trend-level"_L1 : *change < 0 ? "trend-down"_L1 : "trend-up"_L1;
}

WeightPeriod::Length lengthOf(GraphView::Shown shown)
{
    return shown == GraphView::FourWeeks ? WeightPeriod::Length::FourWeeks
           : shown == GraphView::Months  ? WeightPeriod::Length::Month
                                         : WeightPeriod::Length::Year;
}

} // namespace

GraphView::GraphView(const WeightDesk &desk)
    : PersonView(u"graph"_s, desk)
    , m_low(new LowWindow(this))
    , m_figures(new FigureStrip(u"graphFigures"_s, this))
    , m_choice(named(new QComboBox(this), u"graphShown"_s))
    , m_stack(new QStackedWidget(this))
    , m_chart(new LineChartView(u"Chart2D1"_s, m_stack))
    , m_table(named(new QTableView(m_stack), u"graphPeriods"_s))
{
    const QString title = u"Weight Tracker Graph"_s;
    titleLine().setTitle(title, title); // in smaller letters beside the choice, where there is little width
    m_choice->addItems({u"Graph of the last 50"_s, u"Graph of the whole history"_s, u"Compare four weeks"_s,
                        u"Compare months"_s, u"Compare years"_s});
    m_choice->setAccessibleName(u"What is shown"_s);
    titleLine().addAtRight(m_choice);
    makeTable();
    m_stack->addWidget(m_chart);
    m_stack->addWidget(m_table);
    addContent(m_figures);
    addContent(m_stack, 1);
    connect(m_choice, &QComboBox::currentIndexChanged, this, &GraphView::showWork);
}

void GraphView::makeTable()
{
    std::vector<TableColumn<Row>> columns;
    const QStringList headings = WeightPeriod::headings();
    for (qsizetype i = 0; i < headings.size(); ++i)
        columns.push_back({headings[i], i == 0 ? Qt::AlignLeft : Qt::AlignRight,
                           [i](const Row &row) { return row.value(i); }});
    m_periods = new RowsModel<Row>(std::move(columns), this);
    m_table->setModel(m_periods);
    m_table->setAccessibleName(u"Periods compared"_s);
    setGridRows(m_table);
}

void GraphView::setShown(Shown shown)
{
    m_choice->setCurrentIndex(shown);
}

WeightGraph::Extent GraphView::extent() const
{
    return m_choice->currentIndex() == Everything ? WeightGraph::Extent::Everything
                                                  : WeightGraph::Extent::Last50;
}

void GraphView::refresh()
{
    showFigures();
    showWork();
}

void GraphView::showFigures()
{
    const DateStyle style = desk().program.state.dateStyle;
    const WeightFigures figures = WeightFigures::of(person().sheet(), desk().program.clock.today());
    if (!figures.now) {
        m_figures->setFigures({});
        return;
    }
    const auto week = figures.weekAverage;
    const auto lately = figures.perWeekLately;
    m_figures->setFigures({{u"Week's average"_s, week ? WeightWords::weight(*week) : u"-"_s},
                           {u"A week, lately"_s, differenceOr(lately), signOf(lately)},
                           {u"Since beginning"_s, differenceOr(figures.total), signOf(figures.total)},
                           {u"Goal expected"_s, WeightWords::goalDay(figures.forecast, style)}});
}

void GraphView::showWork()
{
    const auto shown = Shown(m_choice->currentIndex());
    if (shown != Last50 && shown != Everything) {
        showPeriods(shown);
        return;
    }
    const auto extent = shown == Last50 ? WeightGraph::Extent::Last50 : WeightGraph::Extent::Everything;
    LineChart chart = WeightChart::of(person().sheet(), extent, desk().program.clock.today(),
                                      desk().program.state.dateStyle);
    if (!person().fileTrouble().isEmpty())
        chart.nothing = TrackerLines::nothingToShow();
    m_chart->setChart(chart);
    m_stack->setCurrentWidget(m_chart);
    // In a low window the focus of the chart would scroll the title away.
    const bool isChart = !m_chart->chart().isEmpty() && !m_low->isLow();
    setFocusProxy(isChart ? static_cast<QWidget *>(m_chart) : m_choice);
}

void GraphView::showPeriods(Shown shown)
{
    const QDate today = desk().program.clock.today();
    std::vector<Row> rows;
    for (const WeightPeriod &period :
         WeightPeriod::all(WeightTrend::byDay(person().sheet().weighIns), lengthOf(shown), today))
        rows.push_back(period.row(desk().program.state.dateStyle, today));
    m_periods->setRows(std::move(rows));
    m_stack->setCurrentWidget(m_table);
    setFocusProxy(m_choice);
    fitColumns();
}

/// They share the width, as long as each has room for what stands in it.
void GraphView::fitColumns()
{
    QHeaderView *header = m_table->horizontalHeader();
    int needed = 0;
    for (int column = 0; column < m_periods->columnCount(); ++column)
        needed += std::max(static_cast<QAbstractItemView *>(m_table)->sizeHintForColumn(column),
                           header->sectionSizeHint(column));
    const bool isWide = needed <= m_table->viewport()->width();
    header->setSectionResizeMode(isWide ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    header->setSectionResizeMode(0, QHeaderView::ResizeToContents);
}

void GraphView::resizeEvent(QResizeEvent *event)
{
    PersonView::resizeEvent(event);
    fitColumns();
}
