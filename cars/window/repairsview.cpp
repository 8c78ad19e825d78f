// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/repairsview.h"

#include "shell/controls/titleline.h"

using namespace Qt::Literals::StringLiterals;

RepairsView::RepairsView(const CarDesk &desk)
    : CarView(u"repairs"_s, desk)
{
    addContent(new QWidget(this), 1);
}

void RepairsView::refresh()
{
    titleLine().setTitle(u"Repairs"_s);
}
