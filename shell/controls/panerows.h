// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <QImage>

#include <optional>
#include <vector>

/// Names with a count beside each, for the lists at the left.
class PaneRows final : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        keyRole = Qt::UserRole, ///< what the row stands for
        countRole,              ///< shown at the right; 0: not shown
        kindRole,               ///< a `Row::Kind`
        overdueRole             ///< true where some of them are overdue
    };

    struct Row {
        int key = 0;
        QString name{};
        int count = 0;
        bool isOverdue = false;
        QString shown{};      ///< in place of the name, where it is another text
        QString spoken{};     ///< read aloud in place of it
        bool isFixed = false; ///< it cannot be dragged
        enum Kind { Plain, Open, Folded };
        Kind kind = Plain; ///< or a heading, with the rows below it or without them
        bool isRenamable = true;
        bool takesThings = true; ///< that are dropped onto it
        /// Small, before the name; null where it is not here yet.
        std::optional<QImage> picture{};

        bool operator==(const Row &) const = default;
    };

    /// `format` tells these rows from those of other lists while they are dragged.
    explicit PaneRows(QString format, QObject *parent = nullptr);

    /// Rows that stay keep their selection.
    void setRows(std::vector<Row> rows);
    const std::vector<Row> &rows() const { return m_rows; }
    QModelIndex indexOf(int key) const;
    void setPicture(int key, const QImage &picture);
    /// Whether the names may be typed over.
    void setRenamable(bool isRenamable) { m_isRenamable = isRenamable; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    /// Whether it is a row that is being dragged.
    bool isRow(const QMimeData *data) const;
    int keyOf(const QMimeData &data) const;

signals:
    /// Another name was typed.
    void renamed(int key, const QString &name);

private:
    QString m_format;
    std::vector<Row> m_rows;
    bool m_isRenamable = false;
};
