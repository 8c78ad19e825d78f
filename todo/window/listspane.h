// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/shown.h"

#include <QListView>
#include <QWidget>

#include <vector>

class OpenLists;
class PaneRows;
class QLabel;
class QPushButton;
class QVBoxLayout;
class SearchBox;
struct Program;

/// A list onto whose rows things to do can be dropped.
class DropList final : public QListView
{
    Q_OBJECT
public:
    using QListView::QListView;

signals:
    void dropped(int key, const std::vector<int> &items);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPersistentModelIndex m_target;
};

/// The side pane: the search, the views over all lists, and the lists with what is open in each.
class ListsPane final : public QWidget
{
    Q_OBJECT
public:
    ListsPane(const Program &program, OpenLists &lists, QWidget *parent = nullptr);

    /// Marks what is shown. Asks nothing and says nothing.
    void show(const Shown &shown);
    /// Puts a button under the lists.
    void addButton(QPushButton *button);
    /// Lets the name of a list be typed over.
    void rename(int list);
    void startSearch();
    void clearSearch();
    QListView &lists() const { return *m_lists; }
    SearchBox &search() const { return *m_search; }

    /// The counts are others.
    void refresh();

signals:
    void chosen(const Shown &shown);
    /// A row was clicked, or Enter pressed on it: the work goes on in what it shows.
    void entered();
    void dropped(int list, const std::vector<int> &items);
    void renamed(int list, const QString &name);

private:
    QListView *makeList(QListView *view, const QString &name, const QString &spoken, PaneRows *rows);
    void layOut();
    void follow(QListView *view, bool isOfLists);
    void searchTyped(const QString &words);

    const Program &m_program;
    OpenLists &m_openLists;
    SearchBox *m_search;
    PaneRows *m_viewRows;
    PaneRows *m_listRows;
    QListView *m_views;
    DropList *m_lists;
    QLabel *m_count;
    QVBoxLayout *m_rows;
    Shown m_shown;
    Shown m_beforeSearch;
    bool m_isFollowing = true; ///< a change of the selection shows its row
};
