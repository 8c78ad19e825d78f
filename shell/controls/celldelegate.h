// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/gridcell.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>

#include <memory>

class CellGrid;
class DatePicker;
class QAction;
class QLineEdit;
struct DateReading;

/// Draws the cells of a grid in which one types, and makes the boxes for it: dates have the calendar beside
/// them. Its model says with `GridCell` roles what a cell takes.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit CellDelegate(CellGrid *grid);
    ~CellDelegate() override;

    /// Cells that hold a date get boxes which read it, with `picker` beside them.
    void takeDates(const DateReading &reading, DatePicker *picker);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const final;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const final;
    void setEditorData(QWidget *editor, const QModelIndex &index) const final;
    /// A text that nobody touched is not written back.
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

    /// A text that is cut shows itself whole, and a sign says what it means.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) final;

    /// Puts the cursor behind what the open box holds, for it to be edited; a date has its calendar.
    void goToEnd() const;
    /// The same where a click opened the box: a number or a date stays selected, to be typed anew.
    void openByMouse() const;
    /// What is typed in the open box goes into its cell, and the box away.
    void finish();
    /// Whether `editor` is the open box of a cell that is still there: what was typed may have moved its row.
    bool isOpenIn(const QWidget *editor) const;

signals:
    /// Something typed or pasted could not be taken; a sentence for the status bar.
    void refused(const QString &reason) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Between the text of a cell and its edges.
    virtual int insetOf(const QModelIndex &index) const;
    /// The text of a cell, cut where it has no room in `width`.
    virtual QString cut(const QModelIndex &index, const QFontMetrics &metrics, int width) const;
    /// The box bears `cellBox` as its name unless it has one of its own.
    virtual QLineEdit *makeBox(QWidget *parent, const QModelIndex &index) const;

    void drawRim(QPainter &painter, const QRect &cell) const;
    CellGrid *grid() const { return m_grid; }

private:
    QColor ground(const QStyleOptionViewItem &option, const QModelIndex &index, bool isCurrent) const;
    void openCalendar() const;
    bool isCalendarUsed() const;
    bool isForCalendar(const QKeyEvent &key) const;
    bool isLeftBy(const QKeyEvent &key);
    QAction *commandOf(const QKeyEvent &key) const;

    CellGrid *m_grid;
    std::unique_ptr<DateReading> m_reading; ///< null in a grid without dates
    DatePicker *m_picker = nullptr;
    mutable QPointer<QWidget> m_editor;   ///< a line; as a widget it can be compared while it goes
    mutable QPersistentModelIndex m_cell; ///< in which the box is open
};
