// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/calendarcommands.h"

#include "calendar/model/calendartrash.h"
#include "calendar/model/messages.h"
#include "calendar/model/nextyear.h"
#include "calendar/window/celltyping.h"
#include "calendar/window/fillcommands.h"
#include "calendar/window/holidaypanel.h"
#include "calendar/window/monthpage.h"
#include "calendar/window/newcalendarpanel.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/rulespanel.h"
#include "calendar/window/windowlines.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/trashpanel.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

CalendarCommands::CalendarCommands(const CalendarDesk &desk, CellTyping &typing, FillCommands &filling,
                                   QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_typing(typing)
    , m_filling(filling)
{}

QAction *CalendarCommands::add(QMenu *menu, const QString &name, const QString &caption,
                               std::function<void()> run, const QKeySequence &key)
{
    const auto first = [this, run = std::move(run)] {
        m_typing.finish();
        run();
    };
    return m_desk.commands.writing(m_desk.commands.add(
        menu, name, caption, first, [this] { return m_desk.calendars.whyLocked(); }, key));
}

void CalendarCommands::addCommands(QMenu *calendar)
{
    const auto unlessHeld = [this] { return m_desk.calendars.whyHeld(); };
    m_create = m_desk.commands.writing(m_desk.commands.add(
        calendar, u"mCNew"_s, u"&New Calendar..."_s, [this] { startNew(); }, unlessHeld,
        CommonKeys::newEntry));
    m_desk.commands.tool(m_create, "new-entry"_L1, u"New"_s);
    QAction *next = m_desk.commands.add(
        calendar, u"mCNext"_s, u"Next &Year from This One"_s, [this] { startNextYear(); },
        [this] {
            QString why = whyNoCalendar();
            if (why.isEmpty() && !NextYear::of(m_desk.calendars.calendar()))
                why = CalendarWindowLines::noNextYear();
            return why;
        });
    m_desk.commands.writing(next);
    calendar->addSeparator();
    add(calendar, u"mCLook"_s, u"Change &Look..."_s, [this] { startLook(); });
    add(calendar, u"mCRules"_s, u"&Rules..."_s, [this] { startRules(); });
    m_desk.commands.add(
        calendar, u"mCHol"_s, u"H&olidays..."_s, [this] { startHolidays(); }, unlessHeld);
}

void CalendarCommands::makePanel()
{
    if (m_panel)
        return;
    m_panel = new NewCalendarPanel(m_desk.program);
    m_desk.views.addPanel(m_panel);
    connect(m_panel, &NewCalendarPanel::accepted, this, &CalendarCommands::take);
}

void CalendarCommands::startNew()
{
    m_typing.finish();
    makePanel();
    m_isNew = true;
    m_panel->start();
    open(m_panel);
}

void CalendarCommands::startLook()
{
    makePanel();
    m_isNew = false;
    m_panel->startLook(m_desk.calendars.calendar(), m_desk.page.month());
    open(m_panel);
}

void CalendarCommands::take()
{
    const WallCalendar wanted = m_panel->calendar();
    m_desk.views.goHome();
    if (m_isNew) {
        const QString title = CalendarWindowLines::made(wanted.title);
        if (m_desk.calendars.make(wanted, title))
            emit done(title);
    } else if (m_desk.calendars.change(CalendarWindowLines::lookChanged(), wanted)) {
        emit done(CalendarWindowLines::lookChanged());
    }
    m_desk.page.setFocus();
}

/// It is filled anew from what this one was filled from.
void CalendarCommands::startNextYear()
{
    m_typing.finish();
    const WallCalendar before = m_desk.calendars.calendar();
    const std::optional<WallCalendar> next = NextYear::of(before);
    if (!next)
        return;
    const QString title = CalendarWindowLines::made(next->title);
    if (!m_desk.calendars.make(*next, title))
        return;
    emit done(title);
    m_filling.open(before.filled.keys());
}

void CalendarCommands::startRules()
{
    if (!m_rules) {
        m_rules = new RulesPanel(m_desk.program, &m_desk.window);
        m_desk.views.addPanel(m_rules);
        connect(m_rules, &RulesPanel::accepted, this, [this] {
            WallCalendar calendar = m_desk.calendars.calendar();
            calendar.rules = m_rules->rules();
            m_desk.views.goHome();
            if (calendar != m_desk.calendars.calendar() &&
                m_desk.calendars.change(CalendarWindowLines::rulesChanged(), calendar))
                emit done(CalendarWindowLines::rulesChanged());
            m_desk.page.setFocus();
        });
    }
    m_rules->start(m_desk.calendars.calendar());
    open(m_rules);
}

void CalendarCommands::startHolidays()
{
    m_typing.finish();
    if (!m_holidays) {
        m_holidays = new HolidayPanel(m_desk.program, &m_desk.window);
        m_desk.views.addPanel(m_holidays);
        connect(m_holidays, &HolidayPanel::said, this, &CalendarCommands::said);
        connect(m_holidays, &HolidayPanel::changed, &m_filling, &FillCommands::checkSoon);
    }
    m_holidays->start(m_desk.calendars.calendar().holidaySets.value(0));
    open(m_holidays);
}

bool CalendarCommands::isEditing() const
{
    return (m_rules && m_desk.views.isShown(m_rules)) || (m_holidays && m_desk.views.isShown(m_holidays));
}

bool CalendarCommands::isModified() const
{
    return (m_rules && m_desk.views.isShown(m_rules) && m_rules->isModified()) ||
           (m_holidays && m_desk.views.isShown(m_holidays) && m_holidays->isModified());
}

void CalendarCommands::addTrashCommands(QMenu *calendar)
{
    m_desk.commands.writing(m_desk.commands.add(
        calendar, u"mCBack"_s, u"Bring &Back Deleted..."_s, [this] { openTrash(); },
        [this] { return m_desk.calendars.whyHeld(); }));
    m_desk.commands.writing(m_desk.commands.add(
        calendar, u"mCDel"_s, u"&Delete Calendar..."_s, [this] { remove(); },
        [this] { return whyNoCalendar(); }));
}

/// A file that is none of ours is left as it is.
QString CalendarCommands::whyNoCalendar() const
{
    if (const QString &held = m_desk.calendars.whyHeld(); !held.isEmpty())
        return held;
    const CalendarHead *head = m_desk.calendars.head();
    if (!head)
        return CalendarWindowLines::noCalendar();
    return head->isCalendar() ? QString() : m_desk.calendars.whyLocked();
}

void CalendarCommands::open(QWidget *panel)
{
    m_desk.window.closePreview();
    m_desk.views.open(panel);
    panel->setFocus();
}

void CalendarCommands::remove()
{
    m_typing.finish();
    const QString name = m_desk.calendars.head()->title;
    if (m_desk.program.dialogs.ask(&m_desk.window, CalendarMessages::deleteCalendar(name)) != Answer::Yes)
        return;
    const QString title = CalendarWindowLines::deleted(name);
    m_desk.views.goHome();
    m_desk.calendars.remove(m_desk.calendars.number(), title);
    emit done(title);
}

void CalendarCommands::openTrash()
{
    m_typing.finish();
    if (!m_trash) {
        m_trash = new TrashPanel(m_desk.program.state.dateStyle, &m_desk.views);
        m_desk.views.addPanel(m_trash);
        connect(m_trash, &TrashPanel::chosen, this, &CalendarCommands::bringBack);
    }
    m_trash->setItems(CalendarTrash::items(m_desk.program.folder, m_desk.program.clock.now()));
    open(m_trash);
}

void CalendarCommands::bringBack(const Trash::Item &item)
{
    if (!m_desk.calendars.bringBack(item))
        return;
    m_desk.views.goHome();
    m_desk.page.setFocus();
    emit said(CalendarWindowLines::broughtBackCalendar(item.title));
}
