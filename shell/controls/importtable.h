// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>

#include <vector>

class IncomingFile;

/// The lines of a file in the preview of what comes in: the number of each, its cells, what becomes of it,
/// and a tick where it may be taken. Its headings say in their group what the file calls them.
class ImportTable final : public QAbstractTableModel
{
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// The headings of a file whose lines are still to be read.
    void begin(IncomingFile &file);
    /// Its lines, when they are read.
    void showLines();
    /// Which of them `showLines` shows.
    void setFilter(int filter) { m_filter = filter; }
    /// The line that stands in `row`.
    std::size_t line(int row) const { return m_shown[std::size_t(row)]; }
    void toggle(int row);
    /// Something of a line has become another, or of several.
    void linesChanged();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    /// Other lines will be taken.
    void chosenChanged();

private:
    Qt::Alignment alignment(int section) const;

    IncomingFile *m_file = nullptr;
    int m_filter = 0;
    std::vector<std::size_t> m_shown;
    QStringList m_headings;
    QStringList m_inFile; ///< what the file calls them, over each
};
