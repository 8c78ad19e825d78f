// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QListView;
class SearchModel;

/// The list of hits below the box of the search over everything. It never takes the focus: the box moves
/// through it.
class SearchHits final : public QFrame
{
    Q_OBJECT
public:
    SearchHits(SearchModel *model, QWidget *parent);

    /// The row that Enter opens; -1: none.
    int currentRow() const;
    void setCurrentRow(int row);
    /// Moves by one row that can be chosen, or by a page; stays at the ends.
    void step(int rows);

    /// High enough for all rows.
    QSize sizeHint() const override;

signals:
    /// A row was clicked.
    void chosen(int row);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    SearchModel *m_model;
    QListView *m_list;
};
