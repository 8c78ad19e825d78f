// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/fillcommands.h"

#include "calendar/model/lines.h"
#include "calendar/window/celltyping.h"
#include "calendar/window/filllines.h"
#include "calendar/window/fillpanel.h"
#include "calendar/window/fillrows.h"
#include "calendar/window/monthpage.h"
#include "calendar/window/opencalendars.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

FillCommands::FillCommands(const CalendarDesk &desk, CellTyping &typing, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_typing(typing)
{
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &FillCommands::check);
}

void FillCommands::addCommands(QMenu *calendar)
{
    m_fill = m_desk.commands.writing(m_desk.commands.add(
        calendar, u"mCFill"_s, u"&Fill..."_s, [this] { open(); },
        [this] { return m_desk.calendars.whyLocked(); }, Qt::CTRL | Qt::Key_I));
}

void FillCommands::open()
{
    open(m_desk.calendars.calendar().filled.keys());
}

void FillCommands::open(const QList<LineSource> &sources)
{
    m_typing.finish();
    if (!m_panel) {
        m_panel = new FillPanel(m_desk.program);
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &FillPanel::accepted, this, &FillCommands::fill);
        connect(m_panel, &FillPanel::said, this, &FillCommands::said);
    }
    m_desk.window.closePreview();
    m_panel->start(m_desk.calendars.calendar(), sources);
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

void FillCommands::fill()
{
    const FillPlan plan = m_panel->plan();
    const QString title = FillLines::filled(plan.summary.words());
    m_desk.views.goHome();
    if (plan.calendar == m_desk.calendars.calendar()) // no step, which the one before would be taken for
        emit said(title);
    else if (m_desk.calendars.change(title, plan.calendar))
        emit done(title);
    m_desk.page.setFocus();
}

void FillCommands::checkSoon()
{
    m_soon.start(0);
}

void FillCommands::checkAgain()
{
    if (!m_seen.empty() && stamps() != m_seen)
        m_soon.start(0);
}

/// A printed sheet and the screen must not part ways unasked: it is only said.
void FillCommands::check()
{
    m_seen = stamps();
    if (m_desk.calendars.current() && !m_desk.calendars.whyLocked().isEmpty())
        emit said(m_desk.calendars.whyLocked());
    if (!m_desk.calendars.whyLocked().isEmpty() || m_typing.isOpen())
        return;
    const WallCalendar &calendar = m_desk.calendars.calendar();
    QStringList lines;
    QStringList turned;
    for (const CalendarSpan &span : calendar.spans) {
        if (span.to < span.from)
            turned.append(span.text);
    }
    if (!turned.isEmpty())
        lines.append(CalendarLines::turnedBars(turned));
    if (!calendar.filled.isEmpty()) {
        const FillRows rows = FillRows::of(m_desk.program, calendar);
        const FillSummary summary = rows.planAsBefore(m_desk.program.clock.today()).summary;
        if (!summary.isNothing())
            lines.append(FillLines::sourcesChanged(summary.changeWords()));
    }
    if (!lines.isEmpty())
        emit said(lines.join(u". "_s));
}

std::vector<FileStamp> FillCommands::stamps() const
{
    std::vector<FileStamp> stamps;
    const Program &program = m_desk.program;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = program.functions.entry(face.function);
        if (face.function != Function::CalendarMaker && entry && entry->dayNotes)
            stamps.push_back(
                FileStamp::of(program.folder, entry->files ? entry->files(program) : entry->liveFiles));
    }
    return stamps;
}
