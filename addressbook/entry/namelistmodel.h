// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/namelist.h"

#include <QAbstractListModel>

/// The name list as the rows of `List1`: the names to read, the whole index line behind them.
class NameListModel final : public QAbstractListModel
{
    Q_OBJECT
public:
    static constexpr int LineRole = Qt::UserRole;

    using QAbstractListModel::QAbstractListModel;

    const NameList &names() const { return m_names; }
    /// Takes the names in the order that the list has.
    void setNames(NameList names);
    /// The rows that are selected stay so, wherever they stand now.
    void arrange(NameOrder order);

    /// Adds `line` in its place and returns the row.
    int add(const QString &line);
    void removeAt(int position);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    NameList m_names;
};
