// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

#include <QAbstractTableModel>
#include <QStringList>

class LogModel;
class OpenCar;
struct CarRecord;
struct Program;

/// The row in which something new is typed for a history or the fuel tracker. What can be known beforehand,
/// the date and the readings, is proposed, and taken unless something else is typed.
class EntryModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    EntryModel(const Program &program, OpenCar &car, const LogModel &log, QObject *parent);

    /// Whether anything was typed.
    bool isTyped() const;
    /// The row as it would be taken.
    QStringList cells() const;
    void clear();
    /// The car is another one, or has changed: the proposals follow it.
    void refresh();
    /// Puts a row of the clipboard into the cells from `column` on.
    void paste(int column, const QStringList &texts);
    /// The cell with which typing begins.
    int firstColumn() const;

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
    QStringList proposed() const;
    QStringList historyProposals() const;

    const Program &m_program;
    OpenCar &m_car;
    const LogModel &m_log;
    QStringList m_typed;
    QStringList m_cells; ///< what was typed, and proposals where nothing was
};
