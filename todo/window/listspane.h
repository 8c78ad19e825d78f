// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/shown.h"

#include <QWidget>

#include <vector>

class DropList;
class OpenLists;
class PaneRows;
class QLabel;
class QListView;
class QPushButton;
class QVBoxLayout;
class SearchBox;
struct Program;

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
    QListView &lists() const;
    SearchBox &search() const { return *m_search; }

    /// The counts are others.
    void refresh();

signals:
    void chosen(const Shown &shown);
    /// A row was clicked, or Enter pressed on it: the work goes on in what it shows.
    void entered();
    void dropped(int list, const std::vector<int> &items);
    /// A list was dragged to before another one; 0: behind the last.
    void ordered(int list, int before);
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
