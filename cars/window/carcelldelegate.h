// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

class CarGrid;
class Clock;
class DatePicker;
class QLineEdit;
struct Program;

/// Draws the cells of a grid of a car, and makes the boxes in which one types into them: dates have the
/// calendar beside them.
class CarCellDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
public:
    CarCellDelegate(const Program &program, CarGrid *grid, DatePicker *picker);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /// A text that nobody touched is not written back.
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

    /// A text that is cut shows itself whole, and a sign says what it means.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

    /// Puts the cursor behind what the open box holds, for it to be edited; a date has its calendar.
    void goToEnd() const;
    /// What is typed in the open box goes into its cell, and the box away.
    void finish();

signals:
    /// Something typed or pasted could not be taken; a sentence for the status bar.
    void refused(const QString &reason) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLineEdit *makeBox(QWidget *parent, const QModelIndex &index) const;
    bool isCalendarUsed() const;

    const Program &m_program;
    CarGrid *m_grid;
    DatePicker *m_picker; ///< null in a grid without dates
    mutable QPointer<QLineEdit> m_editor;
};
