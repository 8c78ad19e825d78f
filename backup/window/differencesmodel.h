// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/window/comparison.h"

#include <QAbstractTableModel>

#include <vector>

/// The records that differ between a snapshot and now. Those that can come back can be ticked.
class DifferencesModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { What, Where, State, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// Nothing is ticked then.
    void setRows(const std::vector<Comparison::Row> &rows);
    const Comparison::Row &row(int row) const { return m_rows[std::size_t(row)]; }
    std::vector<Comparison::Row> ticked() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

signals:
    void tickedChanged();

private:
    bool canComeBack(int row) const;
    QString text(const Comparison::Row &row, int column) const;

    std::vector<Comparison::Row> m_rows;
    std::vector<bool> m_ticks;
};
