// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/calendarprint.h"

#include "calendar/model/calendarpages.h"
#include "calendar/window/calendarprintpanel.h"
#include "calendar/window/celltyping.h"
#include "calendar/window/monthpage.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/sheetmaker.h"
#include "calendar/window/windowlines.h"
#include "shell/controls/activitybar.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/pages/pagepainter.h"
#include "shell/preview/previewmessages.h"
#include "shell/preview/previewpane.h"
#include "shell/preview/printjob.h"
#include "shell/program/program.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

#include <utility>

using namespace Qt::Literals::StringLiterals;

CalendarPrint::CalendarPrint(const CalendarDesk &desk, CellTyping &typing, Places places, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_typing(typing)
    , m_places(std::move(places))
{}

void CalendarPrint::addCommands(QMenu *options)
{
    const auto needsCalendar = [this] {
        return m_desk.calendars.current() ? m_desk.calendars.whyHeld() : CalendarWindowLines::noCalendar();
    };
    Commands &commands = m_desk.commands;
    QAction *copying = commands.add(
        options, u"mOCopy"_s, u"Cop&y"_s, [this] { copy(); }, needsCalendar);
    commands.tool(copying, "copy"_L1, u"Copy"_s);
    QAction *print = commands.add(
        options, u"mOPrt"_s, u"&Print..."_s, [this] { openPanel(false); }, needsCalendar, CommonKeys::print);
    commands.tool(print, "print"_L1, u"Print"_s);
    commands.add(
        options, u"mOPdf"_s, u"Save as P&DF..."_s, [this] { openPanel(true); }, needsCalendar);
}

void CalendarPrint::openPanel(bool isForPdf)
{
    m_typing.finish();
    if (!m_panel) {
        m_panel = new CalendarPrintPanel;
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &PrintPanel::accepted, this, &CalendarPrint::showPages);
        connect(m_panel, &CalendarPrintPanel::pdfWanted, this, &CalendarPrint::savePdf);
    }
    m_desk.window.closePreview();
    m_panel->start(m_desk.calendars.calendar(), m_desk.page.month(), isForPdf);
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

/// They lie as the calendar does, and have its font; what the person turns or chooses is the calendar's.
void CalendarPrint::showPages()
{
    const QList<int> sheets = m_panel->sheets();
    const CalendarLook &look = m_desk.calendars.calendar().look;
    PreviewPane &preview = m_places.preview();
    const PageSetup setup = CalendarPages::setup(look);
    preview.setPaper(setup.paper);
    preview.setOwnOrientation(setup.orientation, [this](PageSetup::Orientation now) { turn(now); });
    PageFont font = PreviewPane::usualFont();
    if (!look.fontFamily.isEmpty())
        font.font.setFamily(look.fontFamily);
    if (look.fontPoints > 0)
        font.font.setPointSizeF(look.fontPoints);
    preview.setOwnFont(font, [this](const PageFont &now) { setFont(now.font); });
    m_desk.window.showPreview(
        [this, sheets](const PageContext &context) {
            const WallCalendar &calendar = m_desk.calendars.calendar();
            CalendarPages::Source source = m_desk.page.sheets().source(calendar.look);
            source.context = context;
            return CalendarPages::page(calendar, source, sheets);
        },
        CalendarWindowLines::jobName(m_desk.calendars.calendar()));
}

void CalendarPrint::turn(PageSetup::Orientation orientation)
{
    WallCalendar calendar = m_desk.calendars.calendar();
    calendar.look.isLandscape = orientation == PageSetup::Landscape;
    m_desk.calendars.change(CalendarWindowLines::turned(calendar.look.isLandscape), calendar);
}

void CalendarPrint::setFont(const QFont &font)
{
    WallCalendar calendar = m_desk.calendars.calendar();
    calendar.look.fontFamily = font.family();
    calendar.look.fontPoints = font.pointSizeF();
    m_desk.calendars.change(CalendarWindowLines::lookChanged(), calendar);
}

void CalendarPrint::savePdf()
{
    const WallCalendar &calendar = m_desk.calendars.calendar();
    const CalendarPages::Source source = m_desk.page.sheets().source(calendar.look);
    PrintJob job(m_desk.program, m_places.activity, &m_desk.window, CalendarWindowLines::jobName(calendar));
    const PagePainter pages(CalendarPages::page(calendar, source, m_panel->sheets()), source.context.setup,
                            PreviewPane::usualFont());
    if (job.toFile(pages))
        m_desk.views.goHome();
    else
        m_panel->setFocus(); // it was the button's that stopped it
}

void CalendarPrint::copy()
{
    m_typing.finish();
    const WallCalendar &calendar = m_desk.calendars.calendar();
    const CalendarPages::Source source = m_desk.page.sheets().source(calendar.look);
    const QDate month = m_desk.page.month();
    const int index = (month.year() - calendar.from.year()) * 12 + month.month() - calendar.from.month();
    const int sheet = CalendarPages::sheetOf(calendar, index);
    const PagePainter page(CalendarPages::page(calendar, source, {sheet}), source.context.setup,
                           PreviewPane::usualFont());
    QGuiApplication::clipboard()->setMimeData(PreviewPane::copied(page, 0).release());
    m_desk.program.dialogs.ask(&m_desk.window, PreviewMessages::pageCopied());
}
