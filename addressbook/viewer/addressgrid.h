// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressviewer.h"

#include <QAbstractTableModel>

/// The viewer's rows as a table: "Name" and the chosen information beside it. With nothing to show, its first
/// row says so.
class AddressGrid final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { NameColumn, InformationColumn };
    /// Whether the cell is an address that the mail program opens.
    static constexpr int LinkRole = Qt::UserRole;

    AddressGrid(const DataFolder &folder, DateStyle style, QObject *parent = nullptr);

    const AddressViewer &viewer() const { return m_viewer; }
    /// No entry is left: the one row there is holds a sentence.
    bool isEmpty() const { return m_viewer.count() == 0; }
    bool isSearching() const { return !m_viewer.searchText().isEmpty(); }

    void load(Information information, const DisplayRange &range, int mostRows = AddressViewer::allRows);
    /// The same rows as the files have them now; what was removed by hand stays away.
    void reload();
    void search(const QString &text);
    void removeEntry(int row);
    /// A column below 0 brings record order back.
    void sort(int column, Qt::SortOrder order) override;

    /// What tells the entry of a row from the others, also after the rows were read anew.
    struct Identity {
        int record = 0;
        QString name;
        bool operator==(const Identity &) const = default;
    };
    /// Of no entry where the row holds a sentence.
    Identity identity(int row) const;
    /// The row of this entry, under another name where it was renamed, or -1.
    int rowOf(const Identity &identity) const;
    /// Brings back what was removed by hand. False: it was not.
    bool bringBack(const Identity &identity);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Whether the text of a cell looks like an e-mail address; blanks around it do not count.
    static bool isMailAddress(const QString &cell);

private:
    QString cell(const QModelIndex &index) const;

    AddressViewer m_viewer;
    DateStyle m_style;
};
