// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>
#include <QWidget>

class QAbstractItemView;
class QTableView;

/// Rows of a list: 33 pixels high or what the font needs, words 8 pixels from the edge, hover in the soft
/// fill. A row that can be ticked has its box before the words, and a click anywhere in it ticks it.
class ListRowDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static int rowHeight();

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
};

/// Gives a list the program's rows: the delegate, alternate rows, no grid, hover.
void setListRows(QAbstractItemView *view);

/// Gives a table whose rows are chosen as a whole the same rows, under a head that is one row high.
void setGridRows(QTableView *view);

/// Holds a list or a table at a height of whole rows; `foot` (a count, say) stands right under it, wherever
/// that is.
class WholeRows final : public QWidget
{
    Q_OBJECT
public:
    explicit WholeRows(QAbstractItemView *view, QWidget *foot = nullptr, QWidget *parent = nullptr);

    /// Beside words that wrap, in a part that scrolls: it asks for its fewest rows alone, so that the part is
    /// not scrolled while the rows can be.
    void setGivesWay(bool givesWay);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void place();
    int rowHeight() const;
    int aroundRows() const;
    int footHeight() const;

    QAbstractItemView *m_view;
    QWidget *m_foot;
};
