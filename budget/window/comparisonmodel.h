// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/yearcomparison.h"

#include <QAbstractTableModel>
#include <QColor>

/// A year beside the year before as a table: what is compared, both years, and the difference in red where
/// the year is the worse for it.
class ComparisonModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(int year, Compared what, const YearComparison::Table &table);
    void setRed(const QColor &red);

    /// The cells of the line of sums.
    QStringList sum() const;
    bool isSumRed() const { return YearComparison::isWorse(m_what, m_table.sum); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int m_year = 0;
    Compared m_what = Compared::Items;
    YearComparison::Table m_table;
    QColor m_red;
};
