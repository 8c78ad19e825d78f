// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperpane.h"

#include "keeper/model/keeper.h"
#include "keeper/window/keeperlistmodel.h"
#include "keeper/window/keeperrowdelegate.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/searchbox.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListView>
#include <QScopedValueRollback>
#include <QSet>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastWidth = 180;

/// Leaves the key for copying to the command: a list copies its row by itself otherwise, past the guard of
/// the clipboard.
class EntryList final : public QListView
{
public:
    using QListView::QListView;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->matches(QKeySequence::Copy))
            event->ignore();
        else
            QListView::keyPressEvent(event);
    }
};

} // namespace

KeeperPane::KeeperPane(const Program &program, const Keeper &keeper, Guard guard, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_keeper(keeper)
    , m_guard(std::move(guard))
    , m_search(new SearchBox(u"keeperSearch"_s, u"Search"_s,
                             u"Looks through titles, user names, addresses, tags and notes"_s, this))
    , m_clear(makeIconButton(u"SSCommand2"_s, "clear-search"_L1, u"Clear the search"_s, this))
    , m_filter(named(new QComboBox(this), u"keeperFilter"_s))
    , m_list(named(new EntryList(this), u"keeperList"_s))
    , m_model(new KeeperListModel(keeper, program.state.dateStyle, this))
    , m_count(named(makeQuietLabel({}, this), u"keeperCount"_s))
    , m_rows(new QVBoxLayout(this))
{
    setObjectName(u"keeperPane"_s);
    m_search->setClearButtonEnabled(false);
    m_search->setTarget(m_list);
    m_filter->setAccessibleName(u"Entries shown"_s);
    m_list->setModel(m_model);
    setListRows(m_list);
    m_list->setItemDelegate(new KeeperRowDelegate(m_list));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setAccessibleName(u"Entries"_s);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    layOut();
    fillFilters({});
    connect(m_search, &QLineEdit::textChanged, this, [this] {
        search();
        leaveUnlisted();
    });
    connect(m_clear, &QPushButton::clicked, this, [this] {
        m_search->clear();
        m_search->setFocus();
    });
    connect(m_filter, &QComboBox::currentIndexChanged, this, [this] {
        narrow();
        leaveUnlisted();
    });
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &KeeperPane::selectionMoved);
    connect(m_list, &QListView::activated, this, &KeeperPane::entered);
    connect(m_search, &SearchBox::leftDown, this, [this] {
        if (selected().isEmpty() && m_model->rowCount() > 0)
            m_list->setCurrentIndex(m_model->index(0));
    });
    search();
}

void KeeperPane::layOut()
{
    auto *search = new QHBoxLayout;
    search->setSpacing(4);
    search->addWidget(m_search, 1);
    search->addWidget(m_clear);
    m_rows->setContentsMargins({});
    m_rows->setSpacing(8);
    m_rows->addLayout(search);
    m_rows->addWidget(m_filter);
    m_rows->addWidget(new WholeRows(m_list, m_count, this), 1);
    m_filter->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMinimumWidth(leastWidth);
    setFocusProxy(m_search);
}

void KeeperPane::addButton(QPushButton *button)
{
    m_rows->addWidget(button);
}

void KeeperPane::followKeeper()
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    const QList<KeeperSummary> entries = m_keeper.entries();
    fillFilters(entries);
    const QSet<QByteArray> before(m_chosen.begin(), m_chosen.end());
    m_chosen.clear();
    m_chosenEntries.clear();
    for (const KeeperSummary &entry : entries) {
        if (before.contains(entry.id)) {
            m_chosen.append(entry.id);
            m_chosenEntries.append(entry);
        }
    }
    narrow();
}

void KeeperPane::forget()
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    m_filter->setCurrentIndex(0);
    m_search->clear();
    m_chosen.clear();
    m_chosenEntries.clear();
    fillFilters({});
    m_model->forget();
}

/// What was chosen stays chosen, as far as it is still offered.
void KeeperPane::fillFilters(const QList<KeeperSummary> &entries)
{
    const KeeperFilter before = filter();
    m_filters = KeeperFilters::of(entries);
    const QSignalBlocker quiet(m_filter);
    m_filter->clear();
    for (const KeeperFilter &each : std::as_const(m_filters))
        m_filter->addItem(KeeperFilters::caption(each));
    m_filter->setCurrentIndex(int(std::max<qsizetype>(0, m_filters.indexOf(before))));
}

KeeperFilter KeeperPane::filter() const
{
    return m_filters.value(m_filter->currentIndex());
}

void KeeperPane::setFilter(const KeeperFilter &filter)
{
    m_filter->setCurrentIndex(int(std::max<qsizetype>(0, m_filters.indexOf(filter))));
}

void KeeperPane::narrow()
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    m_model->narrow(filter(), m_program.clock.today());
    search();
}

void KeeperPane::search()
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    const QString words = m_search->text().trimmed();
    setUnavailable(m_clear, words.isEmpty() ? KeeperWindowLines::nothingSearched() : QString());
    m_model->show(words.isEmpty() ? std::nullopt : std::optional(m_keeper.search(words)));
    select();
    m_count->setText(KeeperWindowLines::countOfEntries(shownCount(), filter().what == KeeperFilter::Trash,
                                                       !words.isEmpty()));
    emit narrowed();
}

/// What filter and search leave out of the list is not chosen any more; only what was typed stays in sight.
void KeeperPane::leaveUnlisted()
{
    const QList<QByteArray> listed = selected();
    if (!m_isFollowing || listed.size() == m_chosen.size() || m_guard.isModified())
        return;
    setChosen(listed);
    emit chosenChanged(m_chosen);
}

void KeeperPane::choose(const QByteArray &id)
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    setChosen(id.isEmpty() ? QList<QByteArray>() : QList{id});
    select();
    if (m_chosenEntries.isEmpty() || !m_list->selectionModel()->selectedRows().isEmpty())
        return;
    const bool isTrashed = m_chosenEntries.first().isTrashed;
    m_search->clear();
    setFilter({isTrashed ? KeeperFilter::Trash : KeeperFilter::All, {}, {}});
}

QList<QByteArray> KeeperPane::chosen() const
{
    QList<QByteArray> ids = m_chosen;
    ids.removeAll(QByteArray());
    return ids;
}

void KeeperPane::setChosen(const QList<QByteArray> &ids)
{
    const QSet<QByteArray> wanted(ids.begin(), ids.end());
    m_chosen.clear();
    m_chosenEntries.clear();
    for (int place = 0; place < m_keeper.count() && m_chosen.size() < wanted.size(); ++place) {
        KeeperSummary entry = m_keeper.summary(place);
        if (wanted.contains(entry.id)) {
            m_chosen.append(entry.id);
            m_chosenEntries.append(std::move(entry));
        }
    }
}

int KeeperPane::shownCount() const
{
    return m_model->rowCount();
}

QList<KeeperSummary> KeeperPane::shown() const
{
    QList<KeeperSummary> entries;
    entries.reserve(m_model->rowCount());
    for (int row = 0; row < m_model->rowCount(); ++row)
        entries.append(m_model->entry(row));
    return entries;
}

void KeeperPane::showAll()
{
    m_search->clear();
    setFilter({});
}

void KeeperPane::startSearch()
{
    m_search->startAgain();
}

QList<QByteArray> KeeperPane::selected() const
{
    const QModelIndexList rows = m_list->selectionModel()->selectedRows();
    QList<QByteArray> ids;
    ids.reserve(rows.size());
    for (const QModelIndex &row : rows)
        ids.append(m_model->id(row.row()));
    return ids;
}

/// Marks what is chosen, as far as it is listed.
void KeeperPane::select()
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    QItemSelectionModel &selection = *m_list->selectionModel();
    selection.clear();
    const QSet<QByteArray> wanted(m_chosen.begin(), m_chosen.end());
    qsizetype left = wanted.size();
    for (int row = 0; row < m_model->rowCount() && left > 0; ++row) {
        if (!wanted.contains(m_model->id(row)))
            continue;
        --left;
        const QModelIndex index = m_model->index(row);
        selection.select(index, QItemSelectionModel::Select);
        if (selection.currentIndex().row() < 0) {
            selection.setCurrentIndex(index, QItemSelectionModel::NoUpdate);
            m_list->scrollTo(index);
        }
    }
}

void KeeperPane::selectionMoved()
{
    if (!m_isFollowing || m_isAsking)
        return;
    const QList<QByteArray> wanted = selected();
    if (wanted == m_chosen)
        return;
    if (wanted.isEmpty()) { // a click beside the rows: what stands at the right stays marked
        QMetaObject::invokeMethod(this, &KeeperPane::select, Qt::QueuedConnection);
        return;
    }
    if (!m_guard.isModified()) {
        setChosen(wanted);
        emit chosenChanged(m_chosen);
        return;
    }
    // The question waits until the list has done with the click: an answer may have to take the selection
    // back.
    m_isAsking = true;
    QMetaObject::invokeMethod(this, &KeeperPane::takeSelected, Qt::QueuedConnection);
}

void KeeperPane::takeSelected()
{
    const QList<QByteArray> wanted = selected();
    const bool mayGo = m_guard.mayReplace();
    m_isAsking = false;
    if (mayGo && !wanted.isEmpty())
        setChosen(wanted);
    select();
    if (mayGo)
        emit chosenChanged(m_chosen);
}
