// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperfilter.h"

#include <QWidget>

#include <functional>

class KeeperListModel;
class QComboBox;
class QLabel;
class QListView;
class QPushButton;
class QVBoxLayout;
class SearchBox;
struct Program;

/// The side pane: the search, what the list is narrowed to, and the list. Several entries can be chosen at
/// once; nothing that was typed is left without being asked.
class KeeperPane final : public QWidget
{
    Q_OBJECT
public:
    /// What the pane asks of the others.
    struct Desk {
        std::function<bool()> isModified;
        std::function<bool()> mayReplace; ///< asks the user when it is modified
        /// The places of the entries that hold the words.
        std::function<QList<int>(const QString &words)> search;
    };

    KeeperPane(const Program &program, Desk desk, QWidget *parent = nullptr);

    /// The entries are others; what was chosen stays so as far as it is there. Asks nothing.
    void setEntries(const QList<KeeperSummary> &entries);
    /// Marks this one alone, where filter and search let it be seen; else they are lifted. Asks nothing and
    /// says nothing.
    void choose(const QByteArray &id);
    QList<QByteArray> chosen() const { return m_chosen; }
    const KeeperSummary *summary(const QByteArray &id) const;

    KeeperFilter filter() const;
    void setFilter(const KeeperFilter &filter);
    void startSearch();
    void clearSearch();
    void addButton(QPushButton *button);
    QListView &list() const { return *m_list; }
    int shownCount() const;
    QList<QByteArray> shown() const;

signals:
    /// None, one or several are chosen now.
    void chosenChanged(const QList<QByteArray> &ids);
    /// Enter, or a double click: the work goes on in the entry.
    void entered();

private:
    void layOut();
    void fillFilters();
    void refresh();
    void selectionMoved();
    void takeSelected();
    void select(const QList<QByteArray> &ids);
    QList<QByteArray> selected() const;

    const Program &m_program;
    Desk m_desk;
    SearchBox *m_search;
    QPushButton *m_clear;
    QComboBox *m_filter;
    QListView *m_list;
    KeeperListModel *m_model;
    QLabel *m_count;
    QVBoxLayout *m_rows;
    QList<KeeperFilter> m_filters;
    QList<QByteArray> m_chosen;
    bool m_isFollowing = true; ///< a change of the selection shows its row
    bool m_isAsking = false;
};
