// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/dueview.h"

#include "shell/controls/titleline.h"

using namespace Qt::Literals::StringLiterals;

DueView::DueView(const CarDesk &desk)
    : CarView(u"due"_s, desk)
{
    addContent(new QWidget(this), 1);
}

void DueView::refresh()
{
    titleLine().setTitle(u"Nothing is due"_s);
}
