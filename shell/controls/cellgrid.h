// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

class CellDelegate;

/// A grid of texts that are typed right into its cells: a key begins, Enter, Tab and the arrows end it and
/// lead on. The model says with `GridCell` roles what a cell takes.
class CellGrid : public QTableView
{
    Q_OBJECT
public:
    static constexpr int inset = 8; ///< between a text and the edges of its cell

    explicit CellGrid(QWidget *parent = nullptr);

    /// What draws the cells and makes their boxes, in place of the `CellDelegate` that it begins with.
    void setCells(CellDelegate *cells);
    CellDelegate &cells() const { return *m_cells; }
    /// Makes it the single row in which something new is typed, a cell after the other as in boxes.
    void setEntry();
    bool isEntry() const { return m_isEntry; }
    /// Whether it has the focus, itself or in the box of a cell.
    bool isInUse() const;
    /// Rows of one height without numbers.
    void setPlainRows();
    static int usualRowHeight();

    /// What is being typed goes into its cell.
    void finishEdit();
    /// Begins to type into `index`.
    void type(const QModelIndex &index);

    /// Whether `key` ends the typing in a cell and leads to another.
    bool isWayOut(const QKeyEvent &key) const;
    /// Goes where `key` leads to. False for other keys. Tab, and Enter in the row of something new, pass over
    /// cells that cannot be typed into.
    virtual bool walk(const QKeyEvent &key);

signals:
    /// Enter was pressed in the last cell of a row in which something new is typed.
    void entered();
    /// Another cell or row is the current one.
    void currentMoved();
    /// Something was typed or pasted where nothing can be changed.
    void refused();
    /// A sentence for the status bar.
    void said(const QString &line);

protected:
    static bool isEnter(const QKeyEvent &key);

    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    bool focusNextPrevChild(bool next) override;

private:
    QModelIndex beside(int step) const;
    QModelIndex target(const QKeyEvent &key) const;
    void goTo(const QModelIndex &to);

    CellDelegate *m_cells = nullptr;
    bool m_isEntry = false;
    bool m_isTypedOver = false;  ///< the open box replaces what the cell held
    bool m_isCommitting = false; ///< what the open box holds
};
