// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/personview.h"

#include "weight/window/openperson.h"

PersonView::PersonView(const QString &name, const WeightDesk &desk)
    : TitledView(name)
    , m_desk(desk)
{
    connect(&m_desk.person, &OpenPerson::changed, this, [this] { follow(m_desk.person.isModified()); });
}
