// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/logview.h"

class FigureStrip;

/// The repairs and other expenditures of the open car, the newest first.
class RepairsView final : public LogView
{
    Q_OBJECT
public:
    explicit RepairsView(const CarDesk &desk);

protected:
    void showFigures() override;

private:
    FigureStrip *m_figures;
};
