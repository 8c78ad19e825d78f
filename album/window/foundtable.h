// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/findagain.h"

#include <QAbstractTableModel>

/// Pictures that were found again: where each was, where it is now and by what it is known, with a tick where
/// it is to be linked there.
class FoundTable final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Was, Is, KnownBy, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// Those that are sure are ticked.
    void setFound(std::vector<FoundPicture> found);
    std::vector<FoundPicture> ticked() const;
    void toggle(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    void tickedChanged();

private:
    struct Row {
        FoundPicture picture;
        bool isTicked = false;
    };

    std::vector<Row> m_rows;
};
