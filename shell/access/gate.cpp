// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/gate.h"

#include "shell/access/passwordcheck.h"
#include "shell/core/area.h"
#include "shell/program/program.h"

#include <utility>

AccessGate::AccessGate(Prompt prompt)
    : m_prompt(std::move(prompt))
{}

PasswordCheck AccessGate::check(Program &program)
{
    return PasswordCheck(program.folder, PasswordCost::interactive(), &m_memory);
}

bool AccessGate::mayOpen(Program &program, int area, QWidget *parent)
{
    if (area == Area::None)
        return true;
    const bool isGuarded = program.state.protectedAreas.isProtected(area) ||
                           check(program).state() == PasswordCheck::State::Damaged;
    if (!isGuarded)
        return takeVerdict(program);
    program.state.guardedArea = area;
    m_prompt(program, parent);
    return notePassed(area, takeVerdict(program));
}

bool AccessGate::mayUncover(Program &program, int area, QWidget *parent)
{
    program.state.guardedArea = area;
    m_prompt(program, parent);
    return notePassed(area, takeVerdict(program));
}

bool AccessGate::notePassed(int area, bool isPassed)
{
    if (isPassed)
        m_passed.insert(area);
    return isPassed;
}

bool AccessGate::mayOpenPasswordControl(Program &program, QWidget *parent)
{
    program.state.passwordGateResult = PasswordGateResult::PasswordControl;
    if (check(program).state() != PasswordCheck::State::NotSet)
        m_prompt(program, parent);
    return takeVerdict(program);
}

QString AccessGate::takeNotice(const Program &program)
{
    return std::exchange(m_before, {}).words(program.state.dateStyle, program.clock.today());
}

bool AccessGate::takeVerdict(Program &program) const
{
    const bool mayOpen = program.state.passwordGateResult >= PasswordGateResult::Open;
    program.state.passwordGateResult = PasswordGateResult::Open;
    program.state.guardedArea = Area::None;
    return mayOpen;
}
