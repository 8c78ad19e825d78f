// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

/// What a household has, function by function, each to be ticked.
class HoldingsModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Name, Files, Pictures, Size, Copy, ColumnCount };

    struct Row {
        QString key; ///< its name in the records
        QString title;
        qint64 files = 0;
        qint64 pictures = 0;
        qint64 bytes = 0;
        QString copy; ///< who can read it

        bool operator==(const Row &) const = default;
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Rows that stay keep their ticks; new ones are ticked as `choose` last said.
    void setRows(std::vector<Row> rows);
    const std::vector<Row> &rows() const { return m_rows; }
    /// Says this of every copy; empty: of each what its row has.
    void setCopyOfAll(const QString &copy);

    /// Ticks these alone; an empty list ticks all.
    void choose(const QStringList &keys);
    QStringList chosen() const;
    bool isAllChosen() const { return chosen().size() == qsizetype(m_rows.size()); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

signals:
    void chosenChanged();

private:
    bool isChosen(const QString &key) const { return !m_left.contains(key); }
    QString text(const Row &row, int column) const;

    std::vector<Row> m_rows;
    QStringList m_only; ///< as `choose` said; empty: all
    QStringList m_left; ///< not ticked
    QString m_copyOfAll;
};
