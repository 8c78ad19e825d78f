// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/monthpage.h"

#include "calendar/window/monthcells.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/sheetmaker.h"
#include "calendar/window/windowlines.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/steptitle.h"
#include "shell/core/dates.h"
#include "shell/program/program.h"

#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

MonthPage::MonthPage(const Program &program, OpenCalendars &calendars, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_calendars(calendars)
    , m_sheets(new SheetMaker(program, this))
    , m_title(new StepTitle({u"monthTitle"_s, u"month"_s, u"This Month"_s}, this))
    , m_cells(new MonthCells(this))
    , m_foot(new ButtonRow(this))
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(16, 10, 16, 12);
    rows->setSpacing(8);
    rows->addWidget(m_title);
    rows->addWidget(m_cells, 1);
    rows->addWidget(makeLine(this));
    rows->addWidget(m_foot);
    setFocusProxy(m_cells);
    connect(m_title, &StepTitle::stepped, this, &MonthPage::step);
    connect(m_title, &StepTitle::todayRequested, this, [this] { showDay(m_program.clock.today()); });
    connect(m_cells, &MonthCells::monthStepped, this, &MonthPage::step);
    connect(m_cells, &MonthCells::dayWanted, this, [this](QDate day) {
        if (m_calendars.calendar().has(day) || !m_calendars.calendar().has(m_cells->day()))
            showDay(day);
        else
            emit said(CalendarWindowLines::notThisDate());
    });
    connect(m_cells, &MonthCells::moved, this, &MonthPage::moved);
    connect(m_cells, &MonthCells::said, this, &MonthPage::said);
    connect(m_sheets, &SheetMaker::photoRead, this, &MonthPage::showSheet);
}

MonthPage::~MonthPage() = default;

QDate MonthPage::nearest(QDate day) const
{
    const WallCalendar &calendar = m_calendars.calendar();
    return std::clamp(day, calendar.from, calendar.lastDay());
}

void MonthPage::showDay(QDate day)
{
    if (!m_calendars.current())
        return;
    const QDate shown = nearest(day);
    const QDate month(shown.year(), shown.month(), 1);
    const bool isOther = month != m_month;
    m_month = month;
    m_cells->setDay(shown);
    if (isOther) {
        m_leftOver = -1; // it is said of each month
        showSheet();
    }
    m_cells->setDay(shown);
    if (isOther)
        emit monthChanged();
    emit moved();
}

void MonthPage::showLine(QDate day, int line)
{
    showDay(day);
    m_cells->setLine(line);
    if (line >= 0)
        emit said(CalendarWindowLines::chosenLine(m_calendars.calendar(), m_cells->day(), line));
    emit moved();
}

void MonthPage::step(int months)
{
    if (m_calendars.current())
        showDay(m_cells->day().addMonths(months));
}

void MonthPage::startOver()
{
    m_month = {};
    m_leftOver = 0;
    m_cells->setDay({});
    if (!m_calendars.current())
        return;
    const QDate today = m_program.clock.today();
    showDay(m_calendars.calendar().has(today) ? today : m_calendars.calendar().from);
}

void MonthPage::follow()
{
    if (!m_calendars.current())
        return;
    if (!m_calendars.calendar().has(m_month)) {
        showDay(m_month);
        return;
    }
    showSheet();
    emit moved();
}

void MonthPage::showTitle()
{
    const QString month = Dates::monthYear(m_month);
    const QString &title = m_calendars.calendar().title;
    m_title->setTitle(title.isEmpty() ? month : QString(month + u", "_s + title), month);
}

void MonthPage::showSheet()
{
    if (!m_calendars.current() || !m_month.isValid())
        return;
    showTitle();
    const OpenCalendars &calendars = m_calendars;
    const auto sheet = m_sheets->sheet(calendars.calendar(), m_month);
    m_cells->setWhyLocked(calendars.whyLocked());
    m_cells->show(
        sheet,
        [this, &calendars](QDate date, int) {
            const int line = date == m_cells->day() ? m_cells->line() : -1;
            return CalendarWindowLines::dayWords(calendars.calendar(), date, line);
        },
        [&calendars](QDate date, int line) {
            return CalendarWindowLines::chosenLine(calendars.calendar(), date, line);
        });
    if (std::exchange(m_leftOver, sheet->leftOver) != sheet->leftOver)
        emit leftOverChanged(CalendarWindowLines::leftOver(sheet->leftOver));
}
