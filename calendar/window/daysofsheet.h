// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/sheetplan.h"

#include <QAbstractTableModel>

#include <functional>

/// The days of a sheet as a table: what is read aloud of them, and where each stands.
class DaysOfSheet final : public QAbstractTableModel
{
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// What is read aloud of a day.
    using Words = std::function<QString(QDate date, int person)>;
    /// Returns whether the days are others than before; then the rows are new.
    bool setPlan(const SheetPlan &plan, Words words);
    const SheetPlan &plan() const { return m_plan; }

    /// The place of an index among the cells of the plan; -1 where the table has no day.
    int cellOf(const QModelIndex &index) const;
    QModelIndex indexOf(int cell) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    SheetPlan m_plan;
    Words m_words;
    std::vector<int> m_places; ///< the cell of each place of the table, or -1
};
