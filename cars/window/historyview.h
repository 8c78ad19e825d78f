// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/logview.h"

class FigureStrip;

/// What was done to the open car, or bought for it, and what that came to.
class HistoryView : public LogView
{
    Q_OBJECT
public:
    HistoryView(const QString &name, const CarDesk &desk, CarPart part, const LogPane::Names &names);

protected:
    void showFigures() override;

private:
    FigureStrip *m_figures;
};
