// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/carview.h"

/// The information sheet of the open car.
class InformationView final : public CarView
{
    Q_OBJECT
public:
    explicit InformationView(const CarDesk &desk);

protected:
    void refresh() override;
};
