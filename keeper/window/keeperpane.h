// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperfilter.h"

#include <QWidget>

#include <functional>
#include <optional>

class Keeper;
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
    /// What stands before another entry takes the place of the shown one.
    struct Guard {
        std::function<bool()> isModified;
        std::function<bool()> mayReplace; ///< asks the user when it is modified
    };

    KeeperPane(const Program &program, const Keeper &keeper, Guard guard, QWidget *parent = nullptr);

    /// The entries are others; what was chosen stays so as far as it is there. Asks nothing and says nothing.
    void followKeeper();
    /// The keeper is locked: nothing of what is in it stays behind.
    void forget();
    /// Marks this one alone; where filter and search leave it out, they are lifted. Asks nothing and says
    /// nothing.
    void choose(const QByteArray &id);
    /// Without rows that are only a damaged record.
    QList<QByteArray> chosen() const;
    /// What the list shows of them, in the order of the keeper.
    const QList<KeeperSummary> &chosenEntries() const { return m_chosenEntries; }

    KeeperFilter filter() const;
    void setFilter(const KeeperFilter &filter);
    void startSearch();
    /// Lifts filter and search.
    void showAll();
    void addButton(QPushButton *button);
    QListView &list() const { return *m_list; }
    /// Whether filter and search let this one through, which is chosen.
    bool isListed(const QByteArray &id) const { return selected().contains(id); }
    /// The entries that are listed.
    int shownCount() const;
    QList<KeeperSummary> shown() const;

signals:
    /// None, one or several are chosen now.
    void chosenChanged(const QList<QByteArray> &ids);
    /// Enter, or a double click: the work goes on in the entry.
    void entered();
    /// Others are listed.
    void narrowed();

private:
    void layOut();
    void fillFilters(const QList<KeeperSummary> &entries);
    void narrow();
    void search();
    void leaveUnlisted();
    void selectionMoved();
    void takeSelected();
    void setChosen(const QList<QByteArray> &ids);
    void select();
    QList<QByteArray> selected() const;

    const Program &m_program;
    const Keeper &m_keeper;
    Guard m_guard;
    SearchBox *m_search;
    QPushButton *m_clear;
    QComboBox *m_filter;
    QListView *m_list;
    KeeperListModel *m_model;
    QLabel *m_count;
    QVBoxLayout *m_rows;
    QList<KeeperFilter> m_filters;
    QList<QByteArray> m_chosen;
    QList<KeeperSummary> m_chosenEntries;
    bool m_isFollowing = true; ///< a change of the selection shows its row
    bool m_isAsking = false;
};
