// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"
#include "weight/model/weightsheet.h"

#include <QAbstractTableModel>

#include <optional>
#include <vector>

class DateCheck;
class OpenPerson;

/// The weigh-ins of the open person, to be changed in their cells: in the order of the file, or shown by
/// their weights, which leaves the file as it is. Dates and weights are stored, both changes are computed.
/// Every edit is one step of undo.
class WeighInModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Date, Weight, Change, Difference };
    static constexpr int columns = Difference + 1;

    WeighInModel(OpenPerson &person, const DateCheck &dateCheck, QObject *parent);

    /// Shows the sheet as it is now.
    void refresh();
    /// "192.2, 08/10/2026": what a row of the table is called.
    QString titleOf(qsizetype row) const;

    /// Shows the rows by their weights; in the order of the file without one, and for another person. A
    /// weight that is typed over stays where it is.
    void showByWeight(std::optional<Qt::SortOrder> order);
    std::optional<Qt::SortOrder> shownByWeight() const { return m_byWeight; }
    /// The row of the table that is shown at `row`, and where a row of the table is shown.
    qsizetype tableRow(int row) const { return m_order.empty() ? row : m_order[std::size_t(row)]; }
    int shownRow(qsizetype tableRow) const;

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
    void readRows();
    void reorder(std::vector<qsizetype> order);
    QString text(qsizetype row, int column) const;

    OpenPerson &m_person;
    const DateCheck &m_dateCheck;
    QString m_name;
    WeightTable m_rows; ///< as they were shown last
    std::optional<Qt::SortOrder> m_byWeight;
    std::vector<qsizetype> m_order; ///< the rows of the table as they are shown; empty: in their own order
    bool m_isTyping = false;
};
