// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/namelist.h"

#include <QPersistentModelIndex>
#include <QWidget>

#include <functional>

class NameListModel;
class NameListView;
class QCheckBox;
class QLabel;
class QSettings;
class SearchBox;

/// The names of the address book beside the entry: a search box, the list and its count. Knows whose entry is
/// shown, and lets another one take its place only when that may be. Whether the names stand from A to Z is
/// the user's choice, kept in the settings of the desk.
class EntryList final : public QWidget
{
    Q_OBJECT
public:
    /// What stands before another entry takes the place of the shown one.
    struct Guard {
        std::function<bool()> isModified;
        std::function<bool()> mayReplace; ///< asks the user when it is modified
    };

    EntryList(Guard guard, QSettings &desk, QWidget *parent = nullptr);

    const NameList &names() const;
    void setNames(NameList names);

    int selectedRow() const; ///< -1: none
    int shownRow() const { return m_shown.row(); }
    /// The line of the entry that was saved last while this window is open, or -1.
    int savedRow() const { return m_saved.row(); }

    /// Selects and shows the line of `row`; asks nothing.
    void showRow(int row);
    /// No line is selected or shown from now on.
    void showNone();
    /// None is shown, and what was saved last is selected: behind "Save & New Screen" it can be viewed.
    void showNoneButSaved();
    /// Shows the selected line, asking first. False: the user stays.
    bool showSelected();
    /// The same for the line of `record`.
    void showRecord(int record);
    /// The shown entry was saved: its new line stands at the end, or in its place from A to Z, selected and
    /// shown.
    void replaceShown(const QString &line);

    void startSearch();

signals:
    /// The line of `row` is the shown one now.
    void rowShown(int row);
    void nothingFound();
    /// The search has come to the line of `row`, which is about to be shown: match `number` of `count`.
    void matchFound(int row, int number, int count);

private:
    void makeSwitch(QSettings &desk);
    void select(int row);
    void selectionMoved();
    void search();
    void searchNext();
    void rowClicked(int row);
    void showMatch(int row, const QList<int> &matches);
    void refreshCount();

    Guard m_guard;
    NameListModel *m_names;
    NameListView *m_view;
    SearchBox *m_search;
    QLabel *m_count;
    QCheckBox *m_switch;
    QPersistentModelIndex m_shown; ///< none for a new entry
    QPersistentModelIndex m_saved;
    bool m_isFollowing = true; ///< a change of the selection shows its entry
    bool m_isAsking = false;   ///< a question about unsaved changes is about to be asked
};
