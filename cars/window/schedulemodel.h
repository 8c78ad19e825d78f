// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carentry.h"
#include "cars/model/carneeds.h"
#include "cars/model/vehiclesheet.h"

#include <QAbstractTableModel>
#include <QItemSelection>

class OpenCar;
struct Program;

/// The columns of the maintenance schedule; those behind the texts of the file are computed.
namespace ScheduleColumn {
inline constexpr int action = 0;
inline constexpr int intervalDistance = 1;
inline constexpr int intervalMonths = 2;
inline constexpr int lastReading = 3;
inline constexpr int lastDate = 4;
inline constexpr int lastCost = 5;
inline constexpr int remainingDistance = 6;
inline constexpr int remainingTime = 7;
inline constexpr int count = 8;
} // namespace ScheduleColumn

/// The maintenance schedule of the open car, to be changed in its cells, with what remains until each action.
class ScheduleModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    ScheduleModel(const Program &program, OpenCar &car, QObject *parent);

    /// Shows the schedule as it is now.
    void refresh();
    /// Takes away what stands in the `chosen` cells, in one step; how many there were.
    qsizetype clear(const QItemSelection &chosen);
    /// The first row without an action; the last one where there is none.
    int firstFree() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    /// The entry check refuses what was typed into `cell`.
    void noticed(const Message &message, const QModelIndex &cell);
    /// The same in a quiet line.
    void refused(const QString &reason, const QModelIndex &cell);

private:
    QString text(const QModelIndex &index) const;
    CarEntry check(int column, const QString &typed, const QString &before) const;
    const CarNeed *need(int row) const;
    int alarm(const QModelIndex &index) const;

    const Program &m_program;
    OpenCar &m_car;
    std::array<const CarNeed *, VehicleSheet::actionCount> m_needs{}; ///< null where nothing stands
    QList<CarNeed> m_kept;
};
