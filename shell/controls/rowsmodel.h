// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>

#include <functional>
#include <utility>
#include <vector>

/// A column of a table: its heading, and the text of a row in it.
template <typename Row>
struct TableColumn {
    QString heading;
    Qt::Alignment alignment;
    std::function<QString(const Row &row)> text;
};

/// A table whose rows are values: each column says what it shows of one. Texts that are cut show themselves
/// whole in the tool tip.
template <typename Row>
class RowsModel final : public QAbstractTableModel
{
public:
    explicit RowsModel(std::vector<TableColumn<Row>> columns, QObject *parent = nullptr)
        : QAbstractTableModel(parent)
        , m_columns(std::move(columns))
    {}

    void setRows(std::vector<Row> rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }
    const std::vector<Row> &rows() const { return m_rows; }
    /// `row` must be one of the table's.
    const Row &row(int row) const { return m_rows[std::size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_columns.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid))
            return {};
        const TableColumn<Row> &column = m_columns[std::size_t(index.column())];
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(Qt::AlignVCenter | column.alignment);
        return role == Qt::DisplayRole || role == Qt::ToolTipRole ? column.text(row(index.row()))
                                                                  : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
            return {};
        const TableColumn<Row> &column = m_columns[std::size_t(section)];
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue(Qt::AlignVCenter | column.alignment);
        return role == Qt::DisplayRole ? column.heading : QVariant();
    }

private:
    std::vector<TableColumn<Row>> m_columns;
    std::vector<Row> m_rows;
};
