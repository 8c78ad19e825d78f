// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/carview.h"

/// What the open car needs: what is due and overdue, and the schedule that says so.
class DueView final : public CarView
{
    Q_OBJECT
public:
    explicit DueView(const CarDesk &desk);

protected:
    void refresh() override;
};
