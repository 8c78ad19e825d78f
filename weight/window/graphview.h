// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/rowsmodel.h"
#include "weight/model/weightgraph.h"
#include "weight/window/personview.h"

class FigureStrip;
class LineChartView;
class LowWindow;
class QComboBox;
class QStackedWidget;
class QTableView;

/// "Weight Tracker Graph": what the weigh-ins of the open person come to, as a graph or period by period.
class GraphView final : public PersonView
{
    Q_OBJECT
public:
    /// What is shown, in the order of the box.
    enum Shown { Last50, Everything, FourWeeks, Months, Years };

    explicit GraphView(const WeightDesk &desk);

    void setShown(Shown shown);
    /// How much of the history the graph has.
    WeightGraph::Extent extent() const;

protected:
    void refresh() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// A row of the table of periods.
    using Row = QStringList;

    void makeTable();
    void showFigures();
    void showWork();
    void showPeriods(Shown shown);
    void fitColumns();

    LowWindow *m_low;
    FigureStrip *m_figures;
    QComboBox *m_choice;
    QStackedWidget *m_stack;
    LineChartView *m_chart;
    RowsModel<Row> *m_periods = nullptr;
    QTableView *m_table;
};
