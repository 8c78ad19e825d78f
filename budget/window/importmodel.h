// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/bankimport.h"

#include <QAbstractTableModel>

/// The lines of a bank's file in the preview: each says what becomes of it, and has a tick where it can be
/// taken.
class ImportModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Number, Date, Amount, Text, Item, What };
    enum class Filter { All, Chosen, NoItem, Duplicate, NoSpending, NotRead };

    explicit ImportModel(DateStyle style, QObject *parent);

    /// Null: shows nothing. Call it again when the lines were sorted anew.
    void show(BankImport *import);
    void setFilter(Filter filter);
    /// The place in the file of what stands in `row`.
    std::size_t line(int row) const { return m_shown[std::size_t(row)]; }
    /// The first row of which nobody knows the item; 0 where there is none.
    int firstWithoutItem() const;
    void setItem(int row, const QString &item);
    void toggle(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

signals:
    /// Other lines will be taken.
    void chosenChanged();

private:
    bool isShown(const BankLine &line) const;
    QString text(const BankLine &line, int column) const;

    DateStyle m_style;
    BankImport *m_import = nullptr;
    Filter m_filter = Filter::All;
    std::vector<std::size_t> m_shown;
};
