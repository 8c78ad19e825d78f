// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/barcommands.h"

#include "calendar/model/calendaredits.h"
#include "calendar/window/barpanel.h"
#include "calendar/window/celltyping.h"
#include "calendar/window/monthcells.h"
#include "calendar/window/monthpage.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/windowlines.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

BarCommands::BarCommands(const CalendarDesk &desk, CellTyping &typing, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_typing(typing)
{
    const MonthCells &cells = m_desk.page.cells();
    connect(&cells, &MonthCells::spanWanted, this, &BarCommands::openNew);
    connect(&cells, &MonthCells::spanOpened, this, &BarCommands::open);
}

void BarCommands::addCommands(QMenu *edit)
{
    m_desk.commands.writing(m_desk.commands.add(
        edit, u"mEBar"_s, u"B&ar over Days..."_s, [this] { openNew(); },
        [this] { return m_desk.calendars.whyLocked(); }, Qt::CTRL | Qt::Key_B));
    m_desk.commands.writing(m_desk.commands.add(
        edit, u"mEBarEdit"_s, u"C&hange Bar..."_s, [this] { open(barOfDay()); },
        [this] {
            const QString locked = m_desk.calendars.whyLocked();
            return locked.isEmpty() && barOfDay() < 0 ? CalendarWindowLines::noBar() : locked;
        }));
}

/// The first one over the day that is chosen; -1 for none.
int BarCommands::barOfDay() const
{
    const QDate day = m_desk.page.cells().day();
    const QList<CalendarSpan> &spans = m_desk.calendars.calendar().spans;
    for (int span = 0; span < spans.size(); ++span) {
        if (day >= spans[span].from && day <= spans[span].lastDay())
            return span;
    }
    return -1;
}

void BarCommands::openNew()
{
    const MonthCells &cells = m_desk.page.cells();
    m_span = -1;
    const QList<CalendarSpan> &spans = m_desk.calendars.calendar().spans;
    const int tone = spans.isEmpty() ? 1 : spans.last().tone;
    start({cells.firstChosen(), cells.lastChosen(), tone, {}});
}

void BarCommands::open(int span)
{
    m_span = span;
    if (span >= 0 && span < m_desk.calendars.calendar().spans.size())
        start(m_desk.calendars.calendar().spans[span]);
}

void BarCommands::start(const CalendarSpan &span)
{
    m_typing.finish();
    if (const QString why = m_desk.calendars.whyLocked(); !why.isEmpty()) {
        emit said(why);
        return;
    }
    if (!m_panel) {
        m_panel = new BarPanel(m_desk.program, &m_desk.window);
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &BarPanel::accepted, this, &BarCommands::keep);
        connect(m_panel, &BarPanel::removeWanted, this, &BarCommands::remove);
    }
    m_desk.window.closePreview();
    m_panel->start(span, m_span >= 0);
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

void BarCommands::keep()
{
    const CalendarSpan span = m_panel->span();
    if (span.text.isEmpty() || !span.from.isValid()) {
        m_panel->refuse(CalendarWindowLines::barNeedsWords());
        return;
    }
    const WallCalendar &calendar = m_desk.calendars.calendar();
    leave(CalendarWindowLines::barSet(span.text), m_span < 0
                                                      ? CalendarEdits::addSpan(calendar, span)
                                                      : CalendarEdits::setSpan(calendar, m_span, span));
}

void BarCommands::remove()
{
    const WallCalendar &calendar = m_desk.calendars.calendar();
    leave(CalendarWindowLines::barRemoved(calendar.spans.value(m_span).text),
          CalendarEdits::removeSpan(calendar, m_span));
}

void BarCommands::leave(const QString &title, const WallCalendar &after)
{
    m_desk.views.goHome();
    m_desk.page.cells().setDay(m_desk.page.cells().day()); // alone
    if (after != m_desk.calendars.calendar() && m_desk.calendars.change(title, after))
        emit done(title);
    m_desk.page.setFocus();
}
