// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>

#include <vector>

class PaneRows;

/// A list onto whose rows things can be dropped, and whose rows are dragged into another order, as far as
/// `PaneRows` lets them.
class DropList final : public QListView
{
    Q_OBJECT
public:
    /// `itemFormat` is the format of the things that may be dropped onto its rows.
    explicit DropList(QString itemFormat, QWidget *parent = nullptr);

    void setRows(PaneRows *rows);

signals:
    void dropped(int key, const std::vector<int> &items);
    /// A row was dragged to before another one; 0: behind the last that can be dragged.
    void ordered(int key, int before);
    /// A drag is over, wherever it ended.
    void released();

protected:
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool takes(const QModelIndex &row) const;
    bool isDraggable(const QModelIndex &row) const;
    int firstDraggable() const;
    int lastDraggable() const;
    int placeAt(QPoint point) const;
    void mark(const QModelIndex &target, int place);

    QString m_itemFormat;
    PaneRows *m_rows = nullptr;
    QPersistentModelIndex m_target; ///< onto which things would go
    int m_place = -1;               ///< before which row a list would go; -1: nowhere
};
