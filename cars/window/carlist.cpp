// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carlist.h"

#include "cars/model/lines.h"
#include "cars/window/carrowdelegate.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/pictures/pictureloader.h"

#include <QListView>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int leastWidth = 180;
} // namespace

CarList::CarList(const DataFolder &folder, GuardedChoice::Guard guard, QWidget *parent)
    : QWidget(parent)
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
    m_choice = new GuardedChoice(m_view, CarListModel::slotRole, std::move(guard));
    connect(m_choice, &GuardedChoice::chosen, this,
            [this](const QVariant &slot) { emit chosen(slot.toInt()); });
}

void CarList::setVehicles(const QList<Vehicle> &vehicles)
{
    m_pictures->forget();
    m_picturesShown.clear();
    m_choice->changeRows([&] { m_model->setVehicles(vehicles); });
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
    m_choice->show(slot);
}

void CarList::addButton(QPushButton *button)
{
    m_rows->addWidget(button);
}
