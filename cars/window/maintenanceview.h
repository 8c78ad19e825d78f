// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/logview.h"

class FigureStrip;

/// The maintenance history of the open car, the newest first.
class MaintenanceView final : public LogView
{
    Q_OBJECT
public:
    explicit MaintenanceView(const CarDesk &desk);

protected:
    void showFigures() override;

private:
    void offerSchedule(CarRecord &wanted, qsizetype row, LogPane::Adding adding);

    FigureStrip *m_figures;
};
