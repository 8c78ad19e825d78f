// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QAbstractTableModel>
#include <QDate>
#include <QList>

/// Something that comes back, in a list of such things.
struct RuleRow {
    QString rule;
    QString sign{};
    QString text{};
    int line = 0; ///< in the household's file, where it cannot be read; 0: in none
    int at = -1;  ///< its place where it came from; -1: it is new

    bool operator==(const RuleRow &) const = default;
};

/// Rules with their words: what they are called, what they mean, and when they come next.
class RulesTable final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Text, When, Next };

    RulesTable(DateStyle style, QDate today, QObject *parent);

    void setRows(const QList<RuleRow> &rows);
    const QList<RuleRow> &rows() const { return m_rows; }
    void setRow(int row, const RuleRow &value);
    void append(const RuleRow &value);
    void remove(int row);
    /// The first row of which a day is to come; -1: there is none.
    int firstComing() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const RuleRow &row, int column) const;

    DateStyle m_style;
    QDate m_today;
    QList<RuleRow> m_rows;
};
