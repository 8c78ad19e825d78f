// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/dayboard.h"

#include "shell/core/dates.h"
#include "shell/mainmenu/carddesk.h"
#include "shell/mainmenu/firstlook.h"
#include "shell/mainmenu/functionopener.h"
#include "shell/mainmenu/menupicture.h"
#include "shell/mainmenu/todaypanel.h"
#include "shell/program/backupplace.h"
#include "shell/program/program.h"

#include <QTimer>

namespace {

constexpr int checkMilliseconds = 60 * 1000;

} // namespace

DayBoard::DayBoard(Program &program, MenuPicture &picture, const FunctionOpener &opener, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_picture(picture)
    , m_opener(opener)
    , m_news(program)
    , m_notes(program)
    , m_today(new TodayPanel(&picture))
    , m_firstLook(new FirstLook(program, &picture))
    , m_watch(new QTimer(this))
{
    CardDesk &desk = picture.desk();
    desk.setToday(m_today);
    desk.setFirstLook(m_firstLook);
    connect(m_firstLook, &FirstLook::addressWanted, this, [this] { m_opener.open(Function::AddressBook); });
    connect(m_firstLook, &FirstLook::restoreWanted, this,
            [this] { m_opener.open(Function::Backup, BackupPlace::of(BackupPlace::Side::Restore)); });
    connect(&desk, &CardDesk::opened, this, &DayBoard::open);
    connect(&desk, &CardDesk::dateClicked, this, &DayBoard::openToday);
    connect(m_today, &TodayPanel::opened, this,
            [this](Function function, const Place &place) { m_opener.open(function, place); });
    connect(&picture, &MenuPicture::firstPainted, this, &DayBoard::begin);
    connect(m_watch, &QTimer::timeout, this, &DayBoard::refresh);
    connect(&program.changes, &ProgramSignals::guardsChanged, this, &DayBoard::refresh);
    m_watch->setTimerType(Qt::VeryCoarseTimer);
}

void DayBoard::show()
{
    m_picture.setDate(Dates::longText(m_program.clock.today(), m_program.state.dateStyle));
    m_picture.showNews(m_news);
    m_watch->start(checkMilliseconds);
}

void DayBoard::begin()
{
    m_isPainted = true;
    m_firstLook->begin();
    refresh();
}

void DayBoard::refresh()
{
    if (!m_isPainted)
        return;
    m_news.refresh();
    show();
    m_firstLook->refresh();
    if (m_notes.refresh())
        m_today->show(m_notes, m_program.state.dateStyle);
}

/// The key of the planner's card, pressed once more, leads from wherever the planner stands to today.
void DayBoard::open(Function function, bool isByKey)
{
    if (isByKey && function == Function::Planner && m_program.functions.isOpen(function))
        openToday();
    else
        m_opener.open(function);
}

void DayBoard::openToday()
{
    m_opener.open(Function::Planner, {.date = m_program.clock.today()});
}
