// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/guardedchoice.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <QScopedValueRollback>

#include <utility>

GuardedChoice::GuardedChoice(QAbstractItemView *view, int keyRole, Guard guard)
    : QObject(view)
    , m_view(view)
    , m_keyRole(keyRole)
    , m_guard(std::move(guard))
{
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &GuardedChoice::selectionMoved);
}

QModelIndex GuardedChoice::rowOf(const QVariant &key) const
{
    if (!key.isValid() || m_view->model()->rowCount() == 0)
        return {};
    return m_view->model()->match(m_view->model()->index(0, 0), m_keyRole, key, 1, Qt::MatchExactly).value(0);
}

void GuardedChoice::show(const QVariant &key)
{
    m_shown = rowOf(key).isValid() ? key : QVariant();
    select(m_shown);
}

void GuardedChoice::changeRows(const std::function<void()> &change)
{
    const QScopedValueRollback<bool> still(m_isFollowing, false);
    m_shown = {};
    change();
}

QVariant GuardedChoice::selected() const
{
    return m_view->selectionModel()->selectedRows().value(0).data(m_keyRole);
}

void GuardedChoice::select(const QVariant &key)
{
    const QScopedValueRollback<bool> still(m_isFollowing, false);
    if (const QModelIndex row = rowOf(key); row.isValid())
        m_view->setCurrentIndex(row);
    else
        m_view->selectionModel()->clear();
}

void GuardedChoice::selectionMoved()
{
    if (!m_isFollowing || m_isAsking || !selected().isValid())
        return;
    if (!m_guard.isModified()) {
        m_shown = selected();
        emit chosen(m_shown);
        return;
    }
    // The question waits until the list has done with the click: an answer may have to take the selection
    // back.
    m_isAsking = true;
    QMetaObject::invokeMethod(this, &GuardedChoice::takeSelected, Qt::QueuedConnection);
}

void GuardedChoice::takeSelected()
{
    const QVariant wanted = selected();
    const bool mayGo = m_guard.mayReplace();
    m_isAsking = false;
    if (!mayGo || !rowOf(wanted).isValid()) {
        select(m_shown);
        return;
    }
    show(wanted);
    emit chosen(m_shown);
}
