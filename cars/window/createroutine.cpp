// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/createroutine.h"

#include "cars/model/carnumbers.h"
#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "cars/window/carchanges.h"
#include "cars/window/carview.h"
#include "cars/window/dueview.h"
#include "cars/window/informationview.h"
#include "cars/window/opencar.h"
#include "cars/window/sheetform.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/titleline.h"
#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"

#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The views in the order in which a new car is typed in.
constexpr std::array way{CarViews::Information, CarViews::Due, CarViews::Maintenance, CarViews::Repairs,
                         CarViews::Fuel};

} // namespace

CreateRoutine::CreateRoutine(const CarDesk &desk, Hands hands, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_hands(std::move(hands))
{}

QAction *CreateRoutine::addCommand(QMenu *menu)
{
    Commands &all = m_desk.commands;
    const auto unless = [this] { return m_isOn ? CarLines::notWhileCreating() : QString(); };
    return all.writing(all.add(
        menu, u"mONew"_s, u"&Create New File"_s, [this] { start(); }, unless, CommonKeys::newEntry));
}

void CreateRoutine::addButtons()
{
    Commands &all = m_desk.commands;
    m_cancel = all.add(nullptr, u"createCancel"_s, u"&Cancel"_s, [this] { cancel(); });
    m_saveAndExit = all.writing(
        all.add(nullptr, u"createSave"_s, u"&Save File && Exit Create Routine"_s, [this] { saveAndExit(); }));
    m_next = all.writing(
        all.add(nullptr, u"createNext"_s, u"&Next - Move to Next Input File"_s, [this] { next(); }));
    for (const CarViews::Place place : way) {
        ButtonRow &foot = m_hands.views.view(place)->foot();
        m_hands.views.view(place)->titleLine().addChip(m_hands.views.view(place)->objectName() + u"Step"_s);
        const QString name = m_hands.views.view(place)->objectName();
        m_buttons.push_back(all.button(m_cancel, name + u"Cancel"_s, m_cancel->text(), &foot));
        foot.addLeft(m_buttons.back());
        m_buttons.push_back(all.button(m_saveAndExit, name + u"SaveExit"_s, m_saveAndExit->text(), &foot));
        foot.addRight(m_buttons.back());
        if (place == way.back())
            continue;
        m_buttons.push_back(all.button(m_next, name + u"Next"_s, m_next->text(), &foot, ButtonKind::Main));
        foot.addRight(m_buttons.back());
    }
    setOn(false);
}

void CreateRoutine::setOn(bool isOn)
{
    m_isOn = isOn;
    for (QPushButton *button : m_buttons)
        button->setVisible(isOn);
    int number = 0;
    for (const CarViews::Place place : way)
        m_hands.views.view(place)->titleLine().setChip(isOn ? CarLines::step(++number, int(way.size()))
                                                            : QString());
    emit changed();
}

void CreateRoutine::start()
{
    if (!m_hands.mayReplace())
        return;
    m_slotBefore = m_desk.car.slot();
    CarRecord record;
    record.sheet.unit = m_desk.car.unit();
    m_desk.car.startNew(record);
    setOn(true);
    m_hands.views.open(CarViews::Information);
    emit said(CarLines::whatIsRequired());
}

/// What is missing is to be typed next.
void CreateRoutine::showRefused(const CarRecord &record)
{
    m_hands.views.open(CarViews::Information);
    auto *sheet = static_cast<InformationView *>(m_hands.views.view(CarViews::Information));
    const auto isBlank = [&](VehicleSheet::Field field) {
        return record.sheet.field(field).trimmed().isEmpty();
    };
    std::size_t place = SheetForm::boxOf(VehicleSheet::Odometer);
    if (CarFiles::whyNotNamed(record.vehicle.name))
        place = SheetForm::nameBox;
    else if (isBlank(VehicleSheet::Make) && isBlank(VehicleSheet::Model))
        place = SheetForm::boxOf(VehicleSheet::Make);
    sheet->form().box(place)->setFocus();
}

bool CreateRoutine::create()
{
    m_hands.views.finishEdit();
    CarRecord record = m_desk.car.record();
    if (const auto refusal = CarFiles::whyNotCreated(record)) {
        m_desk.program.dialogs.ask(&m_desk.window, *refusal);
        showRefused(record);
        return false;
    }
    if (m_desk.program.dialogs.ask(&m_desk.window, CarMessages::createFile()) != Answer::Yes)
        return false;
    record.sheet.nameFirstActions();
    const CarFiles::Placed placed = m_desk.car.files().create(record, m_desk.program.clock.now());
    if (!placed.isDone) {
        emit said(FrameLines::refused(m_desk.program.folder, CarLines::notSaved()));
        return false;
    }
    m_hands.openList(placed.vehicle.slot);
    m_hands.changes.add(CarLines::created(placed.vehicle.name), placed.change, placed.vehicle.slot);
    return true;
}

void CreateRoutine::next()
{
    const bool isDone = m_desk.car.isNew() ? create() : m_hands.save();
    if (!isDone)
        return;
    const auto at = std::ranges::find_if(
        way, [this](CarViews::Place place) { return m_hands.views.view(place) == m_hands.views.shown(); });
    setOn(true); // the new car was opened like any other
    if (at == way.end() || at + 1 == way.end())
        return;
    m_hands.views.open(*(at + 1));
    if (*(at + 1) == CarViews::Due)
        static_cast<DueView *>(m_hands.views.view(CarViews::Due))->typeInterval();
}

void CreateRoutine::saveAndExit()
{
    if (!(m_desk.car.isNew() ? create() : m_hands.save()))
        return;
    setOn(false);
    m_hands.views.open(CarViews::Due);
}

void CreateRoutine::cancel()
{
    if (!m_hands.mayReplace())
        return;
    // None where the new car was given up; one where it was saved after all.
    const int slot = m_desk.car.slot() > 0 ? m_desk.car.slot() : m_slotBefore;
    setOn(false);
    m_hands.openList(slot);
    if (slot > 0)
        m_hands.views.open(CarViews::Due);
}

void CreateRoutine::end()
{
    if (m_isOn)
        setOn(false);
}
