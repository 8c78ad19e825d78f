// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/carview.h"

/// The fuel tracker of the open car, the newest fill-up first.
class FuelView final : public CarView
{
    Q_OBJECT
public:
    explicit FuelView(const CarDesk &desk);

protected:
    void refresh() override;
};
