// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/fuelview.h"

#include "shell/controls/titleline.h"

using namespace Qt::Literals::StringLiterals;

FuelView::FuelView(const CarDesk &desk)
    : CarView(u"fuel"_s, desk)
{
    addContent(new QWidget(this), 1);
}

void FuelView::refresh()
{
    titleLine().setTitle(u"Fuel"_s);
}
