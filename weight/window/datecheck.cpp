// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/datecheck.h"

#include "shell/frame/commands.h"

using namespace Qt::Literals::StringLiterals;

DateCheck::DateCheck(const Clock &clock, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
{}

QString DateCheck::caption() const
{
    return m_isOn ? u"Turn OFF Date Checker"_s : u"Turn ON Date Checker"_s;
}

QAction *DateCheck::addCommand(Commands &commands, QMenu *menu)
{
    m_commands = &commands;
    m_command = commands.add(menu, u"mODate"_s, caption(), [this] { toggle(); });
    return m_command;
}

void DateCheck::toggle()
{
    m_isOn = !m_isOn;
    m_commands->setCaption(m_command, caption());
    emit said(m_isOn ? u"Dates after today are refused"_s : u"Dates after today are taken"_s);
}

WeightEntry::DateChecker DateCheck::checker() const
{
    return m_isOn ? WeightEntry::DateChecker::On : WeightEntry::DateChecker::Off;
}

WeightEntry DateCheck::tableDate(const QString &typed, const QString &before) const
{
    return WeightEntry::tableDate(typed, before, checker(), m_clock.today());
}

WeightEntry DateCheck::sheetDate(const QString &typed, const QString &before) const
{
    return WeightEntry::sheetDate(typed, before, checker(), m_clock.today());
}
