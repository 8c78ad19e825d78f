// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/entrylist.h"

#include "addressbook/entry/namelistmodel.h"
#include "addressbook/entry/namelistview.h"
#include "shell/controls/controls.h"
#include "shell/controls/listpane.h"
#include "shell/controls/searchbox.h"

#include <QCheckBox>
#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QSettings>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr QLatin1StringView orderKey("Windows/ADDBKVIEW/namesAToZ");
} // namespace

EntryList::EntryList(Guard guard, QSettings &desk, QWidget *parent)
    : QWidget(parent)
    , m_guard(std::move(guard))
    , m_names(new NameListModel(this))
    , m_view(named(new NameListView(this), u"List1"_s))
    , m_search(new SearchBox(u"Text2"_s, u"Search names"_s,
                             u"Type a part of a name and press Enter; F3 finds the next one"_s, this))
    , m_count(named(makeQuietLabel({}, this), u"Label1"_s))
    , m_switch(named(new QCheckBox(u"A to &Z"_s, this), u"namesAToZ"_s))
{
    m_view->setAccessibleName(u"Names"_s);
    m_view->setModel(m_names);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *pane = new ListPane(m_search, m_view, m_count, this);
    pane->addSwitch(m_switch);
    layout->addWidget(pane);
    makeSwitch(desk);
    setTabOrder(m_search, m_switch);
    setTabOrder(m_switch, m_view);
    setFocusProxy(m_view);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &EntryList::selectionMoved);
    connect(m_view, &QListView::clicked, this, [this](const QModelIndex &at) { rowClicked(at.row()); });
    connect(m_search, &QLineEdit::returnPressed, this, &EntryList::search);
    new QShortcut(Qt::Key_F3, this, this, &EntryList::searchNext, Qt::WidgetWithChildrenShortcut);
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter})
        new QShortcut(enter, m_view, this, &EntryList::searchNext, Qt::WidgetShortcut);
}

void EntryList::makeSwitch(QSettings &desk)
{
    m_switch->setToolTip(u"Shows the names in the order of the alphabet"_s);
    m_switch->setAccessibleName(u"Names from A to Z"_s);
    const auto arrange = [this](bool aToZ) {
        m_names->arrange(aToZ ? NameOrder::AToZ : NameOrder::Record);
        m_view->scrollTo(m_view->currentIndex(), QAbstractItemView::PositionAtCenter);
    };
    m_switch->setChecked(desk.value(orderKey).toBool());
    arrange(m_switch->isChecked());
    connect(m_switch, &QCheckBox::toggled, this, [arrange, &desk](bool aToZ) {
        arrange(aToZ);
        desk.setValue(orderKey, aToZ);
    });
}

const NameList &EntryList::names() const
{
    return m_names->names();
}

void EntryList::setNames(NameList names)
{
    const QScopedValueRollback<bool> still(m_isFollowing, false);
    const int saved = this->names().recordAt(savedRow());
    m_names->setNames(std::move(names));
    m_saved = m_names->index(this->names().positionOf(saved));
    refreshCount();
}

void EntryList::refreshCount()
{
    m_count->setText(names().countCaption());
}

int EntryList::selectedRow() const
{
    return m_view->selectionModel()->selectedRows().value(0).row();
}

void EntryList::select(int row)
{
    const QScopedValueRollback<bool> still(m_isFollowing, false);
    if (row < 0) {
        m_view->selectionModel()->clear();
        return;
    }
    m_view->setCurrentIndex(m_names->index(row));
    m_view->scrollTo(m_names->index(row));
}

void EntryList::showRow(int row)
{
    select(row);
    m_shown = m_names->index(row);
    emit rowShown(row);
}

void EntryList::showNone()
{
    select(-1);
    m_shown = QPersistentModelIndex();
}

void EntryList::showNoneButSaved()
{
    m_shown = QPersistentModelIndex();
    select(m_saved.row());
}

void EntryList::selectionMoved()
{
    if (!m_isFollowing || m_isAsking || selectedRow() < 0)
        return;
    if (!m_guard.isModified()) {
        showRow(selectedRow());
        return;
    }
    // The question waits until the list has done with the click: an answer may have to take the selection
    // back.
    m_isAsking = true;
    QMetaObject::invokeMethod(this, &EntryList::showSelected, Qt::QueuedConnection);
}

bool EntryList::showSelected()
{
    const QPersistentModelIndex wanted = m_names->index(selectedRow());
    m_isAsking = true;
    const bool mayGo = m_guard.mayReplace();
    m_isAsking = false;
    if (!mayGo)
        select(m_shown.isValid() ? m_shown.row() : m_saved.row());
    else
        showRow(wanted.isValid() ? wanted.row() : selectedRow());
    return mayGo;
}

void EntryList::showRecord(int record)
{
    if (!m_guard.mayReplace())
        return;
    // Only now: what was saved has moved its line to the end of the list. A line that has outgrown the list
    // is not found any more; the saved entry stays.
    const int row = names().positionOf(record);
    if (row < 0)
        return;
    showRow(row);
    setFocus();
}

void EntryList::replaceShown(const QString &line)
{
    const QScopedValueRollback<bool> still(m_isFollowing, false);
    m_names->removeAt(m_shown.row());
    m_saved = m_shown = m_names->index(m_names->add(line));
    refreshCount();
    select(m_shown.row());
}

/// A row that is selected already, as the saved one is behind "Save & New Screen", is shown all the same.
void EntryList::rowClicked(int row)
{
    if (row == selectedRow() && row != m_shown.row())
        selectionMoved();
}

void EntryList::search()
{
    const int row = names().find(m_search->text());
    if (row < 0) {
        emit nothingFound();
        startSearch();
        return;
    }
    showMatch(row, names().matches(m_search->text()));
}

/// After the selected line, and from the top again after the last match.
void EntryList::searchNext()
{
    if (m_search->text().isEmpty()) {
        rowClicked(selectedRow());
        return;
    }
    const QList<int> matches = names().matches(m_search->text());
    if (matches.isEmpty()) {
        search();
        return;
    }
    const auto next = std::upper_bound(matches.cbegin(), matches.cend(), selectedRow());
    showMatch(next == matches.cend() ? matches.first() : *next, matches);
}

void EntryList::showMatch(int row, const QList<int> &matches)
{
    setFocus();
    if (const int number = int(matches.indexOf(row)) + 1; number > 0)
        emit matchFound(row, number, int(matches.size()));
    m_view->setCurrentIndex(m_names->index(row));
}

void EntryList::startSearch()
{
    m_search->startAgain();
}
