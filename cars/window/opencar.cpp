// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/opencar.h"

#include "cars/model/fuellines.h"
#include "cars/model/lines.h"
#include "cars/model/presentreading.h"
#include "shell/core/framelines.h"
#include "shell/program/program.h"

#include <utility>

OpenCar::OpenCar(const Program &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_files(program.folder, program.state.dateStyle)
    , m_record(std::make_shared<CarRecord>())
    , m_saved(m_record)
{}

bool OpenCar::isModified() const
{
    return *m_record != *m_saved;
}

const OpenCar::Outlook &OpenCar::outlook() const
{
    if (!m_outlook) {
        const DateStyle style = m_program.state.dateStyle;
        const QDate today = m_program.clock.today();
        DrivingLog log = CarNeeds::drivingLog(*m_record, style, today);
        QList<CarNeed> needs = CarNeeds::of(*m_record, log, style, today);
        m_outlook = {std::move(log), std::move(needs)};
    }
    return *m_outlook;
}

void OpenCar::setRecord(const Record &record)
{
    m_record = record;
    m_outlook.reset();
}

/// A reading that was typed is the car's own even before it is saved.
void OpenCar::setTyped(const Record &record)
{
    setRecord(record);
    m_ownReading = PresentReading::withoutFillUps(*record, m_ownReading);
}

QString OpenCar::whyLocked(CarPart part) const
{
    if (!isOpen())
        return CarLines::noCarYet();
    if (QString reason = m_program.folder.whyReadOnly(); !reason.isEmpty())
        return reason;
    const VehicleFiles::State state = m_states[std::size_t(part)];
    const bool isLocked = state == VehicleFiles::State::Foreign || state == VehicleFiles::State::OutOfReach;
    return isLocked ? CarLines::stateOf(VehicleFiles::fileName(part, slot()), state) : QString();
}

void OpenCar::load(int slot)
{
    if (slot == 0) {
        CarRecord none;
        none.sheet.unit =
            m_files.vehicles().isEmpty() ? m_firstUnit.value_or(m_files.unit()) : m_files.unit();
        open(none, {}, false);
        return;
    }
    const CarFiles::Found found = m_files.read(slot);
    open(found.record, found.states, false);
    for (const CarPart part : carParts) {
        const QString state = CarLines::stateOf(VehicleFiles::fileName(part, slot), found.state(part));
        if (!state.isEmpty()) {
            emit said(state);
            break;
        }
    }
}

void OpenCar::setFirstUnit(DistanceUnit unit)
{
    m_firstUnit = unit;
    load(0);
}

void OpenCar::startNew(const CarRecord &record)
{
    open(record, {}, true);
}

void OpenCar::open(const CarRecord &record, const States &states, bool isNew)
{
    setRecord(std::make_shared<CarRecord>(record));
    m_saved = m_record;
    m_ownReading = record.sheet.field(VehicleSheet::Odometer);
    m_states = states;
    m_isNew = isNew;
    emit fileTouched();
    emit loaded();
    emit changed();
}

void OpenCar::change(const QString &title, const CarRecord &wanted, std::optional<CarPart> atOnce)
{
    if (wanted == *m_record)
        return;
    const Record before = m_record;
    const auto after = std::make_shared<CarRecord>(wanted);
    // What no fill-up reads any more, the car does not read either.
    const bool wentBack = wanted.fuel != m_record->fuel && whyLocked(CarPart::Sheet).isEmpty() &&
                          PresentReading::goBack(*after, *m_record, m_ownReading);
    setTyped(after);
    emit edited({title, [=, this] { return exchange(after, before, atOnce); },
                 [=, this] { return exchange(before, after, atOnce); }, UndoStep::Typed});
    emit changed();
    if (wentBack)
        emit said(FuelLines::readingWentBack(after->sheet.field(VehicleSheet::Odometer)));
}

ChangeResult OpenCar::exchange(const Record &shown, const Record &wanted, std::optional<CarPart> atOnce)
{
    if (*m_record != *shown)
        return ChangeResult::Outdated;
    // Where the screen shows what the file of the part has, it does so afterwards too.
    if (atOnce && !m_isNew && withPart(*atOnce, *shown) == *m_saved && !savePart(*atOnce, *wanted))
        return ChangeResult::Refused;
    setTyped(wanted);
    emit changed();
    return ChangeResult::Done;
}

bool OpenCar::save()
{
    if (!write(*m_record))
        return false;
    emit said(CarLines::saved(m_record->vehicle.name));
    return true;
}

bool OpenCar::savePart(CarPart part, const CarRecord &wanted)
{
    return write(withPart(part, wanted));
}

/// What the files have, but for `part`, which is as in `wanted`.
CarRecord OpenCar::withPart(CarPart part, const CarRecord &wanted) const
{
    CarRecord record = *m_saved;
    switch (part) {
    case CarPart::Sheet:
        record.sheet = wanted.sheet;
        break;
    case CarPart::Maintenance:
        record.maintenance = wanted.maintenance;
        break;
    case CarPart::Repairs:
        record.repairs = wanted.repairs;
        break;
    case CarPart::Fuel:
        record.fuel = wanted.fuel;
        break;
    }
    return record;
}

bool OpenCar::write(const CarRecord &wanted)
{
    if (!m_files.save(*m_saved, wanted)) {
        emit said(FrameLines::refused(m_program.folder, CarLines::notSaved()));
        return false;
    }
    m_saved = std::make_shared<CarRecord>(wanted);
    emit fileTouched();
    emit changed();
    return true;
}

QStringList OpenCar::fileNames() const
{
    QStringList names{VehicleList::fileName()};
    for (const CarPart part : carParts) {
        if (slot() > 0)
            names.append(VehicleFiles::fileName(part, slot()));
    }
    return names;
}
