// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/window/sheetlook.h"

#include <QWidget>

class QScrollBar;
class SheetGrid;
class SheetModel;
class TotalsRows;

/// The grid, the totals that stay in sight under it, and the bar by which the months are scrolled where they
/// have no room.
class WorksheetPane final : public QWidget
{
    Q_OBJECT
public:
    explicit WorksheetPane(SheetModel &model, QWidget *parent = nullptr);

    SheetGrid &grid() const { return *m_grid; }
    TotalsRows &totals() const { return *m_totals; }

    void setRows(SheetLook::Rows rows);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void arrange();
    void fitBar();
    int heightFor(int rows) const;
    int gap() const;
    int barHeight() const; ///< with the gap before it; 0 while all months are in view

    SheetGrid *m_grid;
    TotalsRows *m_totals;
    QScrollBar *m_bar;
    SheetLook::Rows m_rows = SheetLook::Rows::Roomy;
};
