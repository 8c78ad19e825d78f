// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/listspane.h"

#include "shell/controls/controls.h"
#include "shell/controls/droplist.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/panerowdelegate.h"
#include "shell/controls/panerows.h"
#include "shell/controls/searchbox.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "todo/model/todocounts.h"
#include "todo/window/itemsmodel.h"
#include "todo/window/openlists.h"
#include "todo/window/windowlines.h"

#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int leastWidth = 180;
constexpr int longestName = 60;
constexpr std::array views{Shown::Today, Shown::Coming, Shown::ByPerson, Shown::Done};

PaneRows::Row row(int key, const QString &name, int count, bool isOverdue)
{
    return {.key = key,
            .name = name,
            .count = count,
            .isOverdue = isOverdue,
            .spoken = ToDoWindowLines::listSpoken(name, count)};
}

PaneRows::Row templateRow(const ToDoList &list)
{
    return {
        .key = list.id, .name = list.name, .shown = ToDoWindowLines::templateOf(list.name), .isFixed = true};
}

QLineEdit *makeNameBox(QWidget *parent)
{
    auto *box = named(new FieldBox(parent), u"listNameBox"_s);
    box->setByteLimit(longestName);
    return box;
}

} // namespace

ListsPane::ListsPane(const Program &program, OpenLists &lists, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_openLists(lists)
    , m_search(
          new SearchBox(u"toDoSearch"_s, u"Search all lists"_s, u"Search all lists, done things too"_s, this))
    , m_viewRows(new PaneRows(u"application/x-quillery-list-of-things"_s, this))
    , m_listRows(new PaneRows(u"application/x-quillery-list-of-things"_s, this))
    , m_views(makeList(new QListView(this), u"toDoViews"_s, u"Views"_s, m_viewRows))
    , m_lists(new DropList(ItemsModel::dragFormat(), this))
    , m_count(named(makeQuietLabel({}, this), u"toDoCount"_s))
    , m_rows(new QVBoxLayout(this))
{
    m_lists->setRows(m_listRows);
    makeList(m_lists, u"toDoLists"_s, u"Lists"_s, m_listRows);
    m_lists->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_listRows->setRenamable(true);
    layOut();
    connect(m_search, &QLineEdit::textChanged, this, &ListsPane::searchTyped);
    connect(m_lists, &DropList::dropped, this, &ListsPane::dropped);
    connect(m_lists, &DropList::ordered, this, &ListsPane::ordered);
    connect(m_lists, &DropList::released, this, [this] { show(m_shown); }); // not what the mouse took hold of
    connect(m_listRows, &PaneRows::renamed, this, &ListsPane::renamed);
    follow(m_views, false);
    follow(m_lists, true);
}

QListView *ListsPane::makeList(QListView *view, const QString &name, const QString &spoken, PaneRows *rows)
{
    named(view, name)->setModel(rows);
    setListRows(view);
    view->setAlternatingRowColors(false);
    view->setItemDelegate(new PaneRowDelegate(view, makeNameBox));
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setAccessibleName(spoken);
    return view;
}

void ListsPane::layOut()
{
    m_rows->setContentsMargins({});
    m_rows->setSpacing(8);
    m_rows->addWidget(m_search);
    m_rows->addWidget(m_views);
    m_rows->addSpacing(4);
    m_rows->addWidget(new WholeRows(m_lists, m_count, this), 1);
    m_views->ensurePolished();
    m_views->setFixedHeight(int(views.size()) * ListRowDelegate::rowHeight() + 2 * m_views->frameWidth());
    m_views->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_search->setTarget(m_views);
    setMinimumWidth(leastWidth);
    setFocusProxy(m_views);
}

/// A list into which Tab leads marks its first row as the current one: that is no choice yet.
void ListsPane::follow(QListView *view, bool isOfLists)
{
    const auto choose = [this, isOfLists](const QModelIndex &row) {
        const int key = row.data(PaneRows::keyRole).toInt();
        const Shown shown = isOfLists ? Shown{Shown::List, key, {}} : Shown{Shown::Kind(key), 0, {}};
        if (shown == m_shown)
            return;
        clearSearch();
        show(shown);
        emit chosen(shown);
    };
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, view, choose](const QModelIndex &row) {
                if (m_isFollowing && row.isValid() && view->selectionModel()->isSelected(row))
                    choose(row);
            });
    for (const auto taken : {&QAbstractItemView::clicked, &QAbstractItemView::activated}) {
        connect(view, taken, this, [this, choose](const QModelIndex &row) {
            choose(row);
            emit entered();
        });
    }
}

void ListsPane::refresh()
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    const ToDoCounts counts = ToDoCounts::of(m_openLists.sheet(), m_program.clock.today());
    std::vector<PaneRows::Row> rows;
    for (const Shown::Kind view : views) {
        const bool isToday = view == Shown::Today;
        rows.push_back(row(view, ToDoWindowLines::nameOf(view), isToday ? counts.today : 0,
                           isToday && counts.overdue > 0));
    }
    m_viewRows->setRows(std::move(rows));
    rows.clear();
    std::vector<PaneRows::Row> templates;
    for (const ToDoList &list : m_openLists.sheet().lists()) {
        const ToDoCounts::OfList count = counts.lists.value(list.id);
        if (list.kind == ListKind::Template)
            templates.push_back(templateRow(list));
        else
            rows.push_back(row(list.id, list.name, count.open, count.isOverdue));
    }
    m_count->setText(ToDoWindowLines::countOfLists(rows.size()));
    rows.insert(rows.end(), templates.begin(), templates.end());
    m_listRows->setRows(std::move(rows));
    show(m_shown);
}

void ListsPane::show(const Shown &shown)
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    m_shown = shown;
    const QModelIndex view = m_viewRows->indexOf(shown.kind);
    const QModelIndex list = m_listRows->indexOf(shown.kind == Shown::List ? shown.list : 0);
    for (const auto &[box, row] : {std::pair<QListView *, QModelIndex>(m_views, view), {m_lists, list}}) {
        if (row.isValid())
            box->setCurrentIndex(row);
        else
            box->selectionModel()->clear();
    }
}

void ListsPane::searchTyped(const QString &words)
{
    if (!m_isFollowing)
        return;
    if (m_shown.kind != Shown::Search)
        m_beforeSearch = m_shown;
    const bool isOver = words.trimmed().isEmpty();
    if (isOver && m_shown.kind != Shown::Search)
        return;
    show(isOver ? m_beforeSearch : Shown{Shown::Search, 0, words.trimmed()});
    emit chosen(m_shown);
}

void ListsPane::clearSearch()
{
    const QScopedValueRollback<bool> quiet(m_isFollowing, false);
    m_search->clear();
}

QListView &ListsPane::lists() const
{
    return *m_lists;
}

void ListsPane::startSearch()
{
    m_search->startAgain();
}

void ListsPane::addButton(QPushButton *button)
{
    m_rows->addWidget(button);
}

void ListsPane::rename(int list)
{
    const QModelIndex row = m_listRows->indexOf(list);
    m_lists->setFocus();
    m_lists->edit(row);
}
