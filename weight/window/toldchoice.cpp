// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/toldchoice.h"

#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/program/program.h"
#include "weight/model/toldfigures.h"
#include "weight/window/openperson.h"
#include "weight/window/windowlines.h"

using namespace Qt::Literals::StringLiterals;

ToldChoice::ToldChoice(const WeightDesk &desk, QMenu *menu, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_command(desk.commands.writing(desk.commands.add(
          menu, u"mOTold"_s, u"&Tell This Weight on the Main Menu"_s,
          [this] { choose(m_command->isChecked()); },
          [this] {
              return m_desk.person.isNew() ? TrackerLines::notWhileCreating() : m_desk.person.whyLocked();
          })))
{
    m_command->setCheckable(true);
    connect(&desk.person, &OpenPerson::fileTouched, this, &ToldChoice::mark);
}

void ToldChoice::choose(bool isTold)
{
    const QString name = m_desk.person.name();
    if (ToldFigures::setTold(m_desk.program.folder, name, isTold))
        emit said(isTold ? TrackerLines::isTold(name) : TrackerLines::isNotTold(name));
    else
        emit said(FrameLines::settingNotSaved());
    mark();
}

void ToldChoice::mark()
{
    const QString name = m_desk.person.name();
    m_command->setChecked(!name.isEmpty() && ToldFigures::isTold(m_desk.program.folder, name));
}
