// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"
#include "weight/model/weightsheet.h"

#include <QAbstractTableModel>

class DateCheck;
class OpenPerson;

/// The weigh-ins of the open person in the order of the file, to be changed in their cells. Dates and weights
/// are stored, both changes are computed. Every edit is one step of undo.
class WeighInModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Date, Weight, Change, Difference };
    static constexpr int columns = Difference + 1;

    WeighInModel(OpenPerson &person, const DateCheck &dateCheck, QObject *parent);

    /// Shows the sheet as it is now.
    void refresh();
    /// "192.2, 08/10/2026": what a row is called.
    QString titleOf(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    /// What was typed into `cell` is refused.
    void noticed(const Message &message, const QModelIndex &cell);

private:
    QString text(int row, int column) const;

    OpenPerson &m_person;
    const DateCheck &m_dateCheck;
    QString m_name;
    WeightTable m_rows; ///< as they were shown last
};
