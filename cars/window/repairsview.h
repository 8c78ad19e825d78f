// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/carview.h"

/// The repairs and other expenditures of the open car, the newest first.
class RepairsView final : public CarView
{
    Q_OBJECT
public:
    explicit RepairsView(const CarDesk &desk);

protected:
    void refresh() override;
};
