// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/personview.h"

#include "shell/controls/controls.h"
#include "weight/window/openperson.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

PersonView::PersonView(const QString &name, const WeightDesk &desk)
    : TitledView(name)
    , m_desk(desk)
    , m_trouble(named(makeQuietLabel({}, this), name + u"Trouble"_s))
{
    m_trouble->setWordWrap(true);
    addContent(m_trouble);
    showTrouble();
    connect(&m_desk.person, &OpenPerson::changed, this, [this] {
        showTrouble();
        follow(m_desk.person.isModified());
    });
}

void PersonView::showTrouble()
{
    const QString trouble = m_desk.person.fileTrouble();
    m_trouble->setText(trouble);
    m_trouble->setVisible(!trouble.isEmpty());
}
