// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carview.h"

#include "cars/window/opencar.h"

CarView::CarView(const QString &name, const CarDesk &desk)
    : TitledView(name)
    , m_desk(desk)
{
    connect(&m_desk.car, &OpenCar::changed, this, [this] { follow(m_desk.car.isModified()); });
}
