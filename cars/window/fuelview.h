// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/logview.h"

class FigureStrip;
class FuelCalculatorPanel;
class LineChartView;

/// The fuel tracker of the open car: what it uses and costs, and its fill-ups, the newest first.
class FuelView final : public LogView
{
    Q_OBJECT
public:
    explicit FuelView(const CarDesk &desk);

    void openCalculators();

protected:
    void showFigures() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void placeChart();
    void followReading(CarRecord &wanted, qsizetype row);

    FigureStrip *m_figures;
    LineChartView *m_chart;
    FuelCalculatorPanel *m_calculator = nullptr; ///< made when it is first opened
};
