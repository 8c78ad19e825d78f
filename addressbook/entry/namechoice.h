// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/namelist.h"

#include <QAbstractListModel>

/// Some rows of the name list to choose from: all of them, with one at the top, or those that hold a text.
class NameChoice final : public QAbstractListModel
{
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// Offers all of `names`, the line at `first` before the others and the one at `without` not at all; -1:
    /// none.
    void offer(const NameList &names, int first, int without);
    /// Offers those that hold `text`, those that begin with it first; all for the empty text.
    void narrow(const QString &text);

    /// The whole line of a row.
    QString line(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    NameList m_names;
    int m_first = -1;
    int m_without = -1;
    QList<int> m_positions;
};
