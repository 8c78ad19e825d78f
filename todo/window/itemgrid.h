// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/cellgrid.h"

class ItemsModel;
class QLabel;
class Writing;

/// The things to do of a view as a grid: typed right into, ticked with a click or Space, put into another
/// order with the mouse or with keys.
class ItemGrid final : public CellGrid
{
    Q_OBJECT
public:
    ItemGrid(ItemsModel &model, Writing &writing, QWidget *parent = nullptr);

    /// The ids of the chosen items and headings, in their order.
    std::vector<int> chosen() const;
    bool isAnyChosen() const;
    /// Chooses items, the first of them as the current one, and brings it to sight.
    void choose(const std::vector<int> &ids);
    /// Opens a cell whose `text` was refused, to be typed over.
    void typeAgain(const QModelIndex &index, const QString &text);
    /// Makes the first item the current one, or the first row where there is none, without choosing it.
    void goToFirst();
    /// The column "List", for views over all of them.
    void setListShown(bool isShown);
    /// A quiet question under the cell that was typed into; the next key or click takes it away.
    void askQuietly(const QString &question);

signals:
    /// The chosen items are to be ticked, or no longer.
    void ticked();
    /// They are to become steps of the item above, or items again.
    void stepped(bool isStep);
    void laterClicked();
    /// It has another room for its rows.
    void resized();
    /// The dates of a column are to order the rows.
    void sortRequested(int column);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void startDrag(Qt::DropActions actions) override;

private:
    void makeHeading();
    void span();
    void fit();
    bool isTick(const QModelIndex &index) const;
    bool isItem(const QModelIndex &index) const;
    static bool isForText(const QKeyEvent &key);
    int endOfRows() const;
    bool isRow(const QModelIndex &index, int kind) const;
    void showSorting();

    ItemsModel &m_model;
    QLabel *m_question;
    QPersistentModelIndex m_pressed;
    int m_dropLine = -1;      ///< where what is dragged would go; -1: nowhere
    bool m_isPassing = false; ///< the focus came by Tab, and Tab leads on
};
