// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carchanges.h"

#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "cars/window/opencar.h"
#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/trashpanel.h"
#include "shell/frame/undostack.h"
#include "shell/frame/workviews.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

CarChanges::CarChanges(const CarDesk &desk, Hands hands, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_hands(std::move(hands))
{
    connect(&m_desk.car, &OpenCar::changed, this, &CarChanges::markUnit);
}

void CarChanges::addEditCommands(QMenu *edit)
{
    m_trash = new TrashPanel(m_desk.program.state.dateStyle, &m_desk.views);
    m_desk.views.addPanel(m_trash);
    connect(m_trash, &TrashPanel::chosen, this, &CarChanges::bringBack);
    m_desk.commands.writing(
        m_desk.commands.add(edit, u"mEBack"_s, u"Bring &Back Deleted..."_s, [this] { openTrash(); }));
}

void CarChanges::addUnitCommands(QMenu *options)
{
    Commands &all = m_desk.commands;
    m_miles = all.writing(
        all.add(options, u"mOProgMiles"_s, u"&Miles"_s, [this] { changeUnit(DistanceUnit::Miles); }));
    m_kilometers = all.writing(all.add(options, u"mOProgKilo"_s, u"&Kilometers"_s,
                                       [this] { changeUnit(DistanceUnit::Kilometers); }));
    for (QAction *unit : {m_miles, m_kilometers})
        unit->setCheckable(true);
}

QAction *CarChanges::addDelete(QMenu *options)
{
    Commands &all = m_desk.commands;
    return all.writing(all.add(
        options, u"mODel"_s, u"&Delete File"_s, [this] { remove(); },
        [this] { return m_desk.car.isNew() ? CarLines::notWhileCreating() : QString(); }));
}

void CarChanges::add(const QString &title, const CarChange &change, int slot)
{
    m_hands.undo.push(title, std::make_shared<CarChange>(change), [this, slot] { m_hands.openList(slot); });
    emit said(FrameLines::withTrash(title, change.trashState()));
    m_hands.undo.offer();
}

void CarChanges::remove()
{
    if (!m_desk.car.isOpen()) {
        m_desk.program.dialogs.ask(&m_desk.window, CarMessages::noneSelected());
        return;
    }
    const int slot = m_desk.car.slot();
    const QString name = m_desk.car.savedName();
    if (m_desk.program.dialogs.ask(&m_desk.window, CarMessages::deleteFile(name)) != Answer::Yes)
        return;
    const auto change = m_desk.car.files().remove(slot, m_desk.program.clock.now());
    if (!change) {
        emit said(FrameLines::refused(m_desk.program.folder, CarLines::notDeleted()));
        return;
    }
    m_hands.openList(0);
    add(CarLines::deleted(name), *change, slot);
}

void CarChanges::openTrash()
{
    m_desk.window.closePreview();
    m_trash->setItems(m_desk.car.files().deletedCars(m_desk.program.clock.now()));
    m_desk.views.open(m_trash);
    m_trash->setFocus();
}

void CarChanges::bringBack(const Trash::Item &item)
{
    if (!m_hands.mayReplace())
        return;
    const CarFiles::Placed placed = m_desk.car.files().bringBack(item);
    if (!placed.isDone) {
        emit said(FrameLines::refused(m_desk.program.folder, CarLines::notSaved()));
        return;
    }
    m_desk.views.goHome();
    m_hands.openList(placed.vehicle.slot);
    add(CarLines::broughtBack(placed.vehicle.name), placed.change, placed.vehicle.slot);
}

/// All cars are counted alike. What stands in their files is not converted.
void CarChanges::changeUnit(DistanceUnit unit)
{
    OpenCar &car = m_desk.car;
    if (car.unit() != unit && !car.isOpen()) {
        car.setFirstUnit(unit);
        emit said(CarLines::firstUnit(unit));
    } else if (car.unit() != unit && !m_hands.hasCars()) { // the first car that is being made decides
        CarRecord wanted = car.record();
        wanted.sheet.unit = unit;
        car.change(CarLines::unitNow(unit), wanted);
    } else if (car.unit() != unit && m_hands.mayReplace()) {
        const int slot = car.slot();
        const auto change = car.files().changeUnit(unit);
        if (!change) {
            emit said(FrameLines::refused(m_desk.program.folder, CarLines::notSaved()));
        } else {
            m_hands.openList(slot);
            add(CarLines::unitNow(unit), *change, slot);
        }
    }
    markUnit(); // a click marks the entry by itself
}

void CarChanges::markUnit()
{
    if (!m_miles)
        return;
    m_miles->setChecked(m_desk.car.unit() == DistanceUnit::Miles);
    m_kilometers->setChecked(m_desk.car.unit() == DistanceUnit::Kilometers);
}
