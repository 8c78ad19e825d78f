// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/historyview.h"

/// The maintenance history of the open car, the newest first.
class MaintenanceView final : public HistoryView
{
    Q_OBJECT
public:
    explicit MaintenanceView(const CarDesk &desk);

private:
    void offerSchedule(CarRecord &wanted, qsizetype row, LogPane::Adding adding);
};
