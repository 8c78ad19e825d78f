// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carlist.h"

#include "cars/model/lines.h"
#include "cars/window/carrowdelegate.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/pictures/pictureloader.h"

#include <QItemSelectionModel>
#include <QListView>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int leastWidth = 180;
} // namespace

CarList::CarList(const DataFolder &folder, Guard guard, QWidget *parent)
    : QWidget(parent)
    , m_guard(std::move(guard))
    , m_model(new CarListModel(this))
    , m_view(named(new QListView(this), u"Combo1"_s))
    , m_count(named(makeQuietLabel({}, this), u"carCount"_s))
    , m_rows(new QVBoxLayout(this))
    , m_pictures(new PictureLoader(folder, this))
{
    m_view->setModel(m_model);
    setListRows(m_view);
    m_view->setItemDelegate(new CarRowDelegate(m_view));
    m_view->setAlternatingRowColors(false);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setAccessibleName(u"Cars"_s);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(12);
    m_rows->addWidget(new WholeRows(m_view, m_count, this), 1);
    setMinimumWidth(leastWidth);
    setFocusProxy(m_view);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &CarList::selectionMoved);
}

void CarList::setVehicles(const QList<Vehicle> &vehicles)
{
    const QScopedValueRollback<bool> still(m_isFollowing, false);
    m_pictures->forget();
    m_picturesShown.clear();
    m_shown = 0;
    m_model->setVehicles(vehicles);
    m_count->setText(CarLines::countOfCars(vehicles.size()));
}

void CarList::setPicture(int slot, const QString &picture)
{
    if (m_picturesShown.contains(slot) && m_picturesShown[slot] == picture)
        return;
    m_picturesShown.insert(slot, picture);
    if (picture.trimmed().isEmpty()) {
        m_model->setPicture(slot, {});
        return;
    }
    const qreal ratio = devicePixelRatioF();
    m_pictures->load(picture, 2 * CarRowDelegate::pictureSize() * ratio,
                     [this, slot](const LoadedPicture &loaded) { m_model->setPicture(slot, loaded.image); });
}

void CarList::show(int slot)
{
    m_shown = m_model->rowOf(slot) >= 0 ? slot : 0;
    select(m_shown);
}

void CarList::addButton(QPushButton *button)
{
    m_rows->addWidget(button);
}

int CarList::selectedSlot() const
{
    return m_view->selectionModel()->selectedRows().value(0).data(CarListModel::slotRole).toInt();
}

void CarList::select(int slot)
{
    const QScopedValueRollback<bool> still(m_isFollowing, false);
    if (const int row = m_model->rowOf(slot); row >= 0)
        m_view->setCurrentIndex(m_model->index(row));
    else
        m_view->selectionModel()->clear();
}

void CarList::selectionMoved()
{
    if (!m_isFollowing || m_isAsking || selectedSlot() == 0)
        return;
    if (!m_guard.isModified()) {
        m_shown = selectedSlot();
        emit chosen(m_shown);
        return;
    }
    // The question waits until the list has done with the click: an answer may have to take the selection
    // back.
    m_isAsking = true;
    QMetaObject::invokeMethod(this, &CarList::takeSelected, Qt::QueuedConnection);
}

void CarList::takeSelected()
{
    const int wanted = selectedSlot();
    const bool mayGo = m_guard.mayReplace();
    m_isAsking = false;
    if (!mayGo || m_model->rowOf(wanted) < 0) {
        select(m_shown);
        return;
    }
    show(wanted);
    emit chosen(wanted);
}
