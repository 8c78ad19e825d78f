// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carcsvimport.h"

#include <QAbstractTableModel>

/// The lines of a file that comes into a history or the fuel tracker: what each says, what becomes of it, and
/// whether it is taken.
class CsvModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Null shows nothing.
    void show(CarCsvImport *import, CarPart part, DistanceUnit unit);
    void toggle(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    void chosenChanged();

private:
    const CarCsvLine &line(int row) const { return m_import->lines()[std::size_t(row)]; }
    bool isNumber(int section) const;

    CarCsvImport *m_import = nullptr;
    CarPart m_part = CarPart::Maintenance;
    QStringList m_headings{QString()};
    QStringList m_inFile; ///< what the file calls them, over each
};
