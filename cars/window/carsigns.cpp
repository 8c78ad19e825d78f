// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carsigns.h"

#include "cars/model/duewords.h"
#include "cars/model/lines.h"
#include "cars/window/carlist.h"
#include "cars/window/opencar.h"
#include "shell/program/program.h"

#include <algorithm>
#include <utility>

namespace {

CarListModel::Sign signOf(const QList<CarNeed> &needs)
{
    const QList<CarNeed> sorted = CarNeeds::byUrgency(needs);
    if (sorted.isEmpty() || !sorted.first().isUrgent())
        return {TwoLineDelegate::NoSign, CarLines::nothingDue(), {}};
    const CarNeed &first = sorted.first();
    const auto urgent = std::ranges::count_if(sorted, &CarNeed::isUrgent);
    return {first.state == CarNeed::State::Overdue ? TwoLineDelegate::Overdue : TwoLineDelegate::Due,
            CarLines::needAndMore(DueWords::shortName(first), int(urgent) - 1),
            CarLines::needPlus(DueWords::shortName(first), int(urgent) - 1)};
}

} // namespace

CarSigns::CarSigns(const Program &program, OpenCar &car, CarList &list, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_car(car)
    , m_list(list)
{
    connect(&m_car, &OpenCar::changed, this, &CarSigns::followOpenCar);
}

void CarSigns::readAll()
{
    if (!std::exchange(m_isReading, true))
        QMetaObject::invokeMethod(this, &CarSigns::readOthers, Qt::QueuedConnection);
}

void CarSigns::readOthers()
{
    m_isReading = false;
    const QList<Vehicle> vehicles = m_list.vehicles();
    for (const Vehicle &vehicle : vehicles) {
        if (vehicle.slot == m_car.slot())
            continue;
        const CarRecord car = m_car.files().read(vehicle.slot).record;
        const DateStyle style = m_program.state.dateStyle;
        const QDate today = m_program.clock.today();
        m_list.setSign(vehicle.slot,
                       signOf(CarNeeds::of(car, CarNeeds::drivingLog(car, style, today), style, today)));
        m_list.setPicture(vehicle.slot, car.sheet.field(VehicleSheet::Picture));
    }
    followOpenCar();
}

void CarSigns::followOpenCar()
{
    if (m_car.slot() == 0)
        return;
    m_list.setSign(m_car.slot(), signOf(m_car.needs()));
    m_list.setPicture(m_car.slot(), m_car.record().sheet.field(VehicleSheet::Picture));
}
