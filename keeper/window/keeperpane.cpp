// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperpane.h"

#include "keeper/window/keeperlistmodel.h"
#include "keeper/window/keeperrowdelegate.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/searchbox.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QListView>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int leastWidth = 180;
} // namespace

KeeperPane::KeeperPane(const Program &program, Desk desk, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_desk(std::move(desk))
    , m_search(new SearchBox(u"keeperSearch"_s, u"Search"_s,
                             u"Looks through titles, user names, addresses, tags and notes"_s, this))
    , m_clear(makeIconButton(u"SSCommand2"_s, "clear-search"_L1, u"Clear the search"_s, this))
    , m_filter(named(new QComboBox(this), u"keeperFilter"_s))
    , m_list(named(new QListView(this), u"keeperList"_s))
    , m_model(new KeeperListModel(program.state.dateStyle, this))
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
    fillFilters();
    connect(m_search, &QLineEdit::textChanged, this, &KeeperPane::refresh);
    connect(m_clear, &QPushButton::clicked, this, [this] {
        clearSearch();
        m_search->setFocus();
    });
    connect(m_filter, &QComboBox::currentIndexChanged, this, &KeeperPane::refresh);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &KeeperPane::selectionMoved);
    connect(m_list, &QListView::activated, this, &KeeperPane::entered);
    refresh();
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

void KeeperPane::setEntries(const QList<KeeperSummary> &entries)
{
    {
        const QScopedValueRollback<bool> quiet(m_isFollowing, false);
        m_model->setEntries(entries, m_program.clock.today());
        fillFilters();
    }
    refresh();
}

/// What was chosen stays chosen, as far as it is still offered.
void KeeperPane::fillFilters()
{
    const KeeperFilter before = filter();
    m_filters = KeeperFilters::of(m_model->entries());
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

/// The entry that is shown stays so, even where filter or search leave it out of the list.
void KeeperPane::refresh()
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    const QString words = m_search->text().trimmed();
    setUnavailable(m_clear, words.isEmpty() ? KeeperWindowLines::nothingSearched() : QString());
    m_model->show(filter(), words.isEmpty() ? std::nullopt : std::optional(m_desk.search(words)));
    select(m_chosen);
    m_count->setText(KeeperWindowLines::countOfEntries(shownCount(), filter().what == KeeperFilter::Trash,
                                                       !words.isEmpty()));
}

void KeeperPane::choose(const QByteArray &id)
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    m_chosen = id.isEmpty() ? QList<QByteArray>() : QList{id};
    if (!id.isEmpty() && !m_model->indexOf(id).isValid()) {
        clearSearch();
        const KeeperSummary *entry = summary(id);
        setFilter({entry && entry->isTrashed ? KeeperFilter::Trash : KeeperFilter::All, {}, {}});
        refresh();
    }
    select(m_chosen);
}

const KeeperSummary *KeeperPane::summary(const QByteArray &id) const
{
    const auto found = std::ranges::find(m_model->entries(), id, &KeeperSummary::id);
    return found == m_model->entries().end() ? nullptr : &*found;
}

int KeeperPane::shownCount() const
{
    return m_model->rowCount();
}

QList<QByteArray> KeeperPane::shown() const
{
    QList<QByteArray> ids;
    ids.reserve(m_model->rowCount());
    for (int row = 0; row < m_model->rowCount(); ++row)
        ids.append(m_model->entry(row).id);
    return ids;
}

void KeeperPane::startSearch()
{
    m_search->startAgain();
}

void KeeperPane::clearSearch()
{
    m_search->clear();
}

QList<QByteArray> KeeperPane::selected() const
{
    QModelIndexList rows = m_list->selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    QList<QByteArray> ids;
    ids.reserve(rows.size());
    for (const QModelIndex &row : std::as_const(rows))
        ids.append(m_model->entry(row.row()).id);
    return ids;
}

void KeeperPane::select(const QList<QByteArray> &ids)
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    QItemSelectionModel &selection = *m_list->selectionModel();
    selection.clear();
    for (const QByteArray &id : ids) {
        const QModelIndex row = m_model->indexOf(id);
        if (!row.isValid())
            continue;
        selection.select(row, QItemSelectionModel::Select);
        selection.setCurrentIndex(row, QItemSelectionModel::NoUpdate);
        m_list->scrollTo(row);
    }
}

void KeeperPane::selectionMoved()
{
    if (!m_isFollowing || m_isAsking || selected().isEmpty() || selected() == m_chosen)
        return;
    if (!m_desk.isModified()) {
        m_chosen = selected();
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
    const bool mayGo = m_desk.mayReplace();
    m_isAsking = false;
    if (mayGo && !wanted.isEmpty())
        m_chosen = wanted;
    select(m_chosen);
    if (mayGo)
        emit chosenChanged(m_chosen);
}
