// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carentry.h"
#include "cars/model/carrecord.h"
#include "cars/model/fuelfigures.h"
#include "cars/model/vehiclefiles.h"
#include "shell/controls/gridcell.h"
#include "shell/core/gridtext.h"

#include <QAbstractTableModel>

class OpenCar;
struct Program;

/// The rows of a history of the open car or of its fuel tracker, the newest first, to be changed in their
/// cells. Every edit goes through the entry check and is one step of undo.
class LogModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    /// `part` is a history or the fuel tracker.
    LogModel(const Program &program, OpenCar &car, CarPart part, QObject *parent);

    CarPart part() const { return m_part; }
    /// Shows the car as it is now. A row that only has another place now keeps its index.
    void refresh();
    /// Where a row stands in its file, and the other way round; -1 for none.
    qsizetype rowInFile(int row) const { return row < 0 ? -1 : m_order.value(row, -1); }
    int rowOf(qsizetype rowInFile) const { return int(m_order.indexOf(rowInFile)); }
    /// What the fill-ups come to, in the order of the file.
    const FuelFigures &figures() const { return m_figures; }
    /// "Battery, Mar 25, 2024": what a row is called.
    QString titleOf(int row) const { return titleOf(m_car, m_order[row]); }
    QString titleOf(const CarRecord &car, qsizetype rowInFile) const;

    /// What becomes of `typed` in a cell of `column` where `before` stood.
    CarEntry check(int column, const QString &typed, const QString &before) const;
    /// Whether the other cells of a row decide those of `column`.
    bool isWorkedOut(int column) const;
    /// What a person should know of a row that has become `cells` by what was typed into `column`; mostly
    /// nothing.
    QString oddity(int column, const QString &typed, const QStringList &cells) const;
    /// What one types into a column.
    GridCell::Kind kind(int column) const;

    /// Puts `rows` into the cells from `first` on, in one step, and tells what came of it.
    QString paste(const QModelIndex &first, const GridText::Rows &rows);
    /// The car without a row, and what taking it away is called.
    struct Removal {
        QString title;
        CarRecord wanted;
    };
    Removal removal(int row) const;

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
    void said(const QString &line);

private:
    QString text(const QModelIndex &index) const;
    const FillUp *fillUp(const QModelIndex &index) const;
    void setCell(CarRecord &car, qsizetype row, int column, const QString &text) const;
    void reorder(const QList<qsizetype> &order);

    const Program &m_program;
    OpenCar &m_open;
    CarPart m_part;
    CarRecord m_car; ///< as it was when it was shown last
    FuelFigures m_figures;
    QList<qsizetype> m_order; ///< of each row, where it stands in the file
};
