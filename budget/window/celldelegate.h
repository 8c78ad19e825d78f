// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QStyledItemDelegate>

class QAction;
class SheetGrid;

/// Draws a cell of the worksheet, and holds the box in which one types into it.
class CellDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit CellDelegate(SheetGrid *grid);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    /// An item that is cut shows itself whole; an amount over its plan says by how much.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

    /// Puts the cursor behind what the open box holds, for it to be edited.
    void goToEnd() const;
    /// What is typed in the open box goes into its cell, and the box away.
    void finish();

signals:
    /// Something typed or pasted could not be taken; a sentence for the status bar.
    void refused(const QString &reason) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAction *commandOf(const QKeyEvent &key) const;

    SheetGrid *m_grid;
    mutable QPointer<QLineEdit> m_editor;
};
