// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/window/sheetlook.h"

#include <QLabel>

#include <array>

class SheetGrid;
class SheetModel;

/// A figure under a month that can be clicked.
class FigureLabel final : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
};

/// What the months come to, under the columns of the grid: expenses (`Label3_0` to `Label3_11`), income
/// (`Label5_0` on, to be clicked) and balance (`Label7_0` on).
class TotalsRows final : public QWidget
{
    Q_OBJECT
public:
    TotalsRows(const SheetModel &model, const SheetGrid &grid, QWidget *parent = nullptr);

    void setRows(SheetLook::Rows rows);

    QSize sizeHint() const override;

signals:
    /// The income of `month` (from 0) is to be entered.
    void incomeClicked(int month);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    static constexpr std::size_t monthCount = 12;

    void refresh();
    void place();
    void showBalance(std::size_t month, const QString &text);

    const SheetModel &m_model;
    const SheetGrid &m_grid;
    SheetLook::Rows m_rows = SheetLook::Rows::Roomy;
    std::array<QLabel *, 3> m_heads;
    std::array<QLabel *, monthCount> m_expenses;
    std::array<FigureLabel *, monthCount> m_incomes;
    std::array<QLabel *, monthCount> m_balances;
};
