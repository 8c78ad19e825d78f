// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/window/orderedgrid.h"

class QLabel;
class Writing;

/// The things to do of a view as a grid: typed right into, ticked with a click or Space, put into another
/// order with the mouse or with keys.
class ItemGrid final : public OrderedGrid
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
    /// Makes the row that unfolds what comes later the current one.
    void goToLater();
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
    /// A list that a search has found is to be shown.
    void listClicked(int list);
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
    bool mayDrag() override;

private:
    void makeHeading();
    void span();
    void fit();
    bool isTick(const QModelIndex &index) const;
    bool isItem(const QModelIndex &index) const;
    static bool isForText(const QKeyEvent &key);
    int listOf(const QModelIndex &index) const;
    bool isRow(const QModelIndex &index, int kind) const;
    void showSorting();

    ItemsModel &m_model;
    QLabel *m_question;
    QPersistentModelIndex m_pressed;
    bool m_isPassing = false; ///< the focus came by Tab, and Tab leads on
};
