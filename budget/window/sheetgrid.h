// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/sheetrange.h"
#include "budget/window/sheetcolumns.h"
#include "budget/window/sheetlook.h"
#include "shell/controls/cellgrid.h"

#include <QElapsedTimer>

class SheetHeadings;
class SheetModel;

/// The worksheet as a grid with the keys of a spreadsheet. Headings and items stay in sight: where twelve
/// months have no room beside the items, some of them are shown, from `firstMonth` on.
class SheetGrid final : public CellGrid
{
    Q_OBJECT
public:
    explicit SheetGrid(SheetModel &model, QWidget *parent = nullptr);

    int firstMonth() const { return m_firstMonth; }
    int monthsInView() const { return m_monthsInView; }
    void setFirstMonth(int month);

    /// The chosen cells; empty where there are none.
    SheetRange range() const;
    /// Chooses `range`, with its first cell as the current one.
    void choose(const SheetRange &range);
    /// Makes `cell` current again, to be typed into once more: a run of Tabs goes on from there.
    void returnTo(const QModelIndex &cell);

    /// Goes where `key` leads to; with Shift, the range grows. False for other keys.
    bool walk(const QKeyEvent &key) override;

    void setRows(SheetLook::Rows rows);
    /// Room for so many whole rows below the headings.
    int heightOfRows(int rows) const;

    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

signals:
    /// Columns have other places or widths.
    void columnsMoved();
    /// Other cells are chosen.
    void rangeChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &chosen, const QItemSelection &before) override;
    bool focusNextPrevChild(bool next) override;

private:
    void measure();
    void fitColumns();
    void fitAroundCurrent();
    /// The cell that lies where the arrow `key` leads to: the next one, or the end of what is filled.
    QModelIndex beside(const QModelIndex &from, int rows, int columns, bool toEnd) const;
    QModelIndex target(const QKeyEvent &key) const;
    QModelIndex afterTab(bool forward) const;
    int runColumn() const { return m_runColumn < 0 ? currentIndex().column() : m_runColumn; }
    QModelIndex belowRun() const;
    void goOn(const QModelIndex &to, int runColumn);
    int lastUsedRow() const;
    void extendTo(const QModelIndex &index);
    void dragMonths(int x);

    const SheetModel &m_model;
    SheetHeadings *m_headings;
    SheetHeadings *m_numbers; ///< of the rows
    SheetColumns::Widths m_needed;
    QPersistentModelIndex m_anchor; ///< where the range began
    bool m_isExtending = false;
    int m_runColumn = -1; ///< where a run of Tabs began; -1 behind anything else
    int m_firstMonth = 0;
    int m_monthsInView = 12;
    QElapsedTimer m_dragged;
};
