// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/daycommands.h"

#include "journal/model/journal.h"
#include "journal/window/daypage.h"
#include "journal/window/openday.h"
#include "journal/window/windowlines.h"
#include "shell/core/dates.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/program/program.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

DayCommands::DayCommands(const JournalDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
{}

/// Where the journal is locked no year of it is looked into.
QString DayCommands::whyNot(QDate date, const QString &none) const
{
    return date.isValid() ? QString() : none;
}

void DayCommands::addCommands(QMenu *view)
{
    Commands &commands = m_desk.commands;
    const auto entryBefore = [this] { return m_desk.journal.previous(m_desk.day.date()); };
    const auto entryBehind = [this] { return m_desk.journal.next(m_desk.day.date()); };
    const auto unless = [this](const std::function<QString()> &why) {
        return [this, why] {
            const QString none = m_desk.whyNone();
            return none.isEmpty() ? why() : none;
        };
    };
    QAction *previous = commands.add(
        view, u"mVPrevious"_s, u"&Previous Entry"_s, [this, entryBefore] { m_desk.goTo(entryBefore()); },
        unless([this, entryBefore] { return whyNot(entryBefore(), JournalWindowLines::noEarlierEntry()); }),
        Qt::CTRL | Qt::Key_PageUp);
    QAction *next = commands.add(
        view, u"mVNext"_s, u"&Next Entry"_s, [this, entryBehind] { m_desk.goTo(entryBehind()); },
        unless([this, entryBehind] { return whyNot(entryBehind(), JournalWindowLines::noLaterEntry()); }),
        Qt::CTRL | Qt::Key_PageDown);
    view->addSeparator();
    commands.add(
        view, u"mVBefore"_s, u"Day &Before"_s, [this] { step(-1); }, unless([] { return QString(); }),
        Qt::ALT | Qt::Key_Left);
    commands.add(
        view, u"mVAfter"_s, u"Day &After"_s, [this] { step(1); }, unless([] { return QString(); }),
        Qt::ALT | Qt::Key_Right);
    commands.add(
        view, u"mVToday"_s, u"&Today"_s, [this] { goToday(); }, unless([] { return QString(); }),
        Qt::ALT | Qt::Key_Home);
    QAction *date = commands.add(
        view, u"mVDate"_s, u"&Go to Date..."_s, [this] { goToDate(); }, unless([] { return QString(); }),
        Qt::CTRL | Qt::Key_G);
    commands.tool(previous, "previous"_L1, u"Previous Entry"_s);
    commands.tool(next, "next"_L1, u"Next Entry"_s);
    commands.tool(date, "calendar-day"_L1, u"Go to Date"_s);
    commands.separateTools();
}

void DayCommands::goToday()
{
    m_desk.goTo(m_desk.program.clock.today());
}

void DayCommands::step(int days)
{
    const QDate date = m_desk.day.date().addDays(days);
    if (Journal::isPossible(date))
        m_desk.goTo(date);
    else
        emit said(days < 0 ? JournalWindowLines::firstDay() : JournalWindowLines::lastDay());
}

void DayCommands::goToDate()
{
    const DateStyle style = m_desk.program.state.dateStyle;
    const auto typed = m_desk.program.dialogs.input(&m_desk.window, u"Go to Date"_s, u"Date"_s,
                                                    Dates::boxText(m_desk.day.date(), style));
    if (!typed)
        return;
    const auto date = Dates::parse(*typed, style);
    if (date && Journal::isPossible(*date)) {
        m_desk.goTo(*date);
        m_desk.page.setFocus();
    } else {
        emit said(JournalWindowLines::noDate());
    }
}
