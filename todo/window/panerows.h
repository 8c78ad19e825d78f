// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>

#include <vector>

/// Names with a count beside each, for the lists at the left.
class PaneRows final : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        keyRole = Qt::UserRole, ///< what the row stands for
        countRole,              ///< shown at the right; 0: not shown
        overdueRole             ///< true where some of them are overdue
    };

    struct Row {
        int key = 0;
        QString name;
        int count = 0;
        bool isOverdue = false;
        bool isTemplate = false;

        bool operator==(const Row &) const = default;
    };

    using QAbstractListModel::QAbstractListModel;

    /// Rows that stay keep their selection.
    void setRows(std::vector<Row> rows);
    const std::vector<Row> &rows() const { return m_rows; }
    QModelIndex indexOf(int key) const;
    /// Whether the names may be typed over.
    void setRenamable(bool isRenamable) { m_isRenamable = isRenamable; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    /// Whether it is a row that is being dragged.
    static bool isRow(const QMimeData *data);
    static int keyOf(const QMimeData &data);

signals:
    /// Another name was typed.
    void renamed(int key, const QString &name);

private:
    std::vector<Row> m_rows;
    bool m_isRenamable = false;
};
