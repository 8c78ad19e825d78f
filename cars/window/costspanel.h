// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/cardesk.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/taskpanel.h"

class BarChartView;
class CarCosts;
class FigureStrip;
class LineChartView;
class QComboBox;
class QStackedWidget;
class QTableView;
class QVBoxLayout;

/// What the open car costs: by kinds, years and months, and its charts.
class CostsPanel final : public TaskPanel
{
    Q_OBJECT
public:
    /// What the chart is of, in the order of the box.
    enum Chart { Months, Kinds, Years, Consumption, Odometer };

    explicit CostsPanel(const CarDesk &desk);

    void setChart(Chart chart);
    /// Shows the open car as it is now.
    void refresh();

signals:
    void printWanted();

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A row of the table: a year, and what it came to.
    using Row = QStringList;

    QWidget *makeChartPanel();
    void makeTable();
    void showFigures(const CarCosts &costs);
    void showYears(const CarCosts &costs);
    void placeTable();
    void placeFigures(int line);
    void shareWidth();
    void showChart();

    CarDesk m_desk;
    FigureStrip *m_figures;
    QComboBox *m_charts;
    QVBoxLayout *m_rows = nullptr;
    QStackedWidget *m_stack;
    LineChartView *m_lines;
    BarChartView *m_bars;
    RowsModel<Row> *m_model = nullptr;
    QTableView *m_table;
};
