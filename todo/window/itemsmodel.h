// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/gridcell.h"
#include "todo/model/todoviews.h"

#include <QAbstractTableModel>

class OpenLists;
struct Program;

/// What a view shows, as the rows of its grid. Only the texts that are in sight are decoded.
class ItemsModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Tick, Text, Due, Actual, Who, Repeat, List };
    static constexpr int columns = List + 1;

    enum Role {
        rowKindRole = GridCell::furtherRole, ///< a `ToDoRow::Kind`
        doneRole,
        stepRole,
        idRole
    };

    ItemsModel(const Program &program, const OpenLists &lists, QObject *parent = nullptr);

    /// Another view is to be shown with the next `refresh()`; what was ticked in the one before goes out of
    /// sight then, and its note is closed.
    void show(const Shown &shown);
    const Shown &shown() const { return m_shown; }
    /// The lists are others: rows come and go, and the rest of them stays where it is.
    void refresh();

    ToDoViews::Order order() const { return m_order; }
    bool isBackwards() const { return m_isBackwards; }
    /// Only a list can be sorted: the views have an order of their own.
    bool isSortable() const { return m_shown.kind == Shown::List; }
    /// In the order of the dates in `column`: forwards, backwards, and then one's own order again.
    void sortBy(Column column);
    void unfoldLater();
    /// Opens the note of an item, or closes it.
    void openNote(int id);
    int noteOpened() const { return m_openNote; }
    /// It was ticked here and stays in sight.
    void keepInSight(const std::vector<int> &ids);

    const ToDoRow &rowAt(int row) const { return m_rows[std::size_t(row)]; }
    /// The row of an item; -1 where it is not shown.
    int rowOf(int id) const;
    /// The sentence in which a row is read aloud.
    QString spoken(int row) const;
    /// The items of the view from `first` to `last`, whatever else stands between them.
    std::vector<int> itemsBetween(int first, int last) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

    /// What items are while they are dragged.
    static QString dragFormat() { return QStringLiteral("application/x-quillery-things-to-do"); }
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

signals:
    /// Another text was typed into a cell of an item.
    void typed(int id, int column, const QString &text);
    /// Things were dropped before an item or heading; 0: behind the last row.
    void dropped(const std::vector<int> &ids, int before);

private:
    void setRows(std::vector<ToDoRow> rows);
    QString text(const ToDoItem &item, int column, int role) const;
    QVariant itemData(int row, int column, int role) const;
    bool isOverdue(int sheetRow) const;
    QStringList names() const;

    const Program &m_program;
    const OpenLists &m_lists;
    std::vector<ToDoRow> m_rows;
    Shown m_shown;
    ToDoViews::Order m_order = ToDoViews::Order::Own;
    bool m_isBackwards = false;
    bool m_isLaterShown = false;
    QSet<int> m_ticked;
    int m_openNote = 0;
};
