// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/carview.h"

/// The maintenance history of the open car, the newest first.
class MaintenanceView final : public CarView
{
    Q_OBJECT
public:
    explicit MaintenanceView(const CarDesk &desk);

protected:
    void refresh() override;
};
