// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/householdsearch.h"

#include <QAbstractListModel>

#include <set>
#include <vector>

/// What the search over everything found, as rows: a head for each function, its best hits below, and how
/// many more there are.
class SearchModel final : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Kind { Head, Hit, More, Note };
    enum Role { KindRole = Qt::UserRole, ContextRole, IconRole };

    SearchModel(Program &program, QObject *parent);

    /// Looks for `text`, and again whenever more has been read.
    void setText(const QString &text);
    const QString &text() const { return m_text; }

    Kind kind(int row) const { return m_rows[std::size_t(row)].kind; }
    Function function(int row) const { return m_rows[std::size_t(row)].function; }
    /// Where a hit leads.
    const Place &place(int row) const { return m_rows[std::size_t(row)].hit.place; }
    /// The next row from `row` on, in the direction of `step`, that can be chosen; -1 without one.
    int choosable(int row, int step) const;
    /// Shows all hits of the function whose row this is.
    void showAll(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Row {
        Kind kind = Note;
        Function function = Function::AddressBook;
        SearchHit hit{}; ///< of other rows the title alone
        bool operator==(const Row &) const = default;
    };

    void look();
    void addGroup(std::vector<Row> &rows, const SearchGroup &group) const;
    std::vector<Row> noteRows(bool isAnyFound) const;

    HouseholdSearch m_search;
    QString m_text;
    std::set<Function> m_whole; ///< of which all hits are shown
    std::vector<Row> m_rows;
};
