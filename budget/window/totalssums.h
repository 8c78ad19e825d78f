// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/totals.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;

/// The year's income (`Label13`), expenses (`Label14`) and balance (`Label15`), each with its percentage
/// (`Label18`, `Label16`, `Label17`).
class TotalsSums final : public QWidget
{
    Q_OBJECT
public:
    explicit TotalsSums(QWidget *parent = nullptr);

    /// In a low window they take less.
    void setLow(bool isLow);
    void showSums(const BudgetTotals &totals, SheetLayer layer);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Labels {
        QLabel *caption;
        QLabel *amount;
        QLabel *share;
    };

    Labels add(const QString &caption, const QString &amountName, const QString &shareName);
    void show(const Labels &labels, const BudgetTotals::Sum &sum) const;
    void fit();

    QHBoxLayout *m_row;
    Labels m_income, m_expenses, m_balance;
};
