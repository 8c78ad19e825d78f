// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/informationview.h"

#include "cars/window/opencar.h"
#include "shell/controls/titleline.h"

using namespace Qt::Literals::StringLiterals;

InformationView::InformationView(const CarDesk &desk)
    : CarView(u"information"_s, desk)
{
    addContent(new QWidget(this), 1);
}

void InformationView::refresh()
{
    titleLine().setTitle(car().record().vehicle.name);
}
