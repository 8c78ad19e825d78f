// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/totals.h"
#include "shell/controls/rowsmodel.h"

#include <QTableView>

/// The items of a year with what they come to: the grid `Grid2`.
class TotalsTable final : public QTableView
{
    Q_OBJECT
public:
    explicit TotalsTable(QWidget *parent = nullptr);

    void setRows(const QList<BudgetTotals::Row> &rows);
    /// The height of the whole rows that have room in `room`.
    int heightIn(int room) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    int heightOf(int rows) const;

    RowsModel<BudgetTotals::Row> m_model;
    int m_itemWidth; ///< that the items need
};
