// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QDate>
#include <QList>

class SpentYear;

/// The items of the worksheet in one month: the day on which each is due, to be typed, and whether it is
/// paid, to be ticked.
class DueModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Item, DueDay, Planned, Spent, Paid };

    /// `today` is the date that a tick writes down where it lies in the month.
    DueModel(SpentYear &year, QDate today, QObject *parent);

    /// From 0.
    void setMonth(int month);
    int month() const { return m_month; }
    /// The row of the worksheet that stands in `row`.
    int sheetRow(int row) const { return m_rows[row]; }
    void toggle(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    void refresh();
    QString item(int row) const;
    qint64 planned(int row) const;
    qint64 spent(int row) const;
    QString text(int row, int column) const;
    QString state(int row) const;
    bool setDueDay(int row, const QString &typed);

    SpentYear &m_year;
    QDate m_today;
    int m_month = 0;
    QList<int> m_rows; ///< of the worksheet
};
