// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/maintenanceview.h"

#include "shell/controls/titleline.h"

using namespace Qt::Literals::StringLiterals;

MaintenanceView::MaintenanceView(const CarDesk &desk)
    : CarView(u"maintenance"_s, desk)
{
    addContent(new QWidget(this), 1);
}

void MaintenanceView::refresh()
{
    titleLine().setTitle(u"Maintenance"_s);
}
