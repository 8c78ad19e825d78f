// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/plannersidepane.h"

#include "planner/model/lines.h"
#include "planner/window/comingup.h"
#include "planner/window/plannercalendar.h"
#include "shell/controls/controls.h"
#include "shell/controls/searchbox.h"
#include "shell/frame/panelcolors.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// With one month, whose days keep their names, and with two months side by side.
constexpr int oneMonthWidth = 328;
constexpr int narrowWidth = 272;
constexpr int twoMonthsWidth = 596;
/// Windows from this width on have room for two months; those below the other have a narrow pane.
constexpr int wideFrom = 1200;
constexpr int narrowBelow = 1000;
/// In windows lower than this the pane scrolls.
constexpr int shortBelow = 700;
constexpr int scrollBarRoom = 20;

/// The days of a year that hold more than blank rows.
QSet<QDate> daysWithEntries(const PlannerFiles &files, int year)
{
    QSet<QDate> days;
    files.forEachDay(year, [&days](QDate date, const PlannerDay &day) {
        if (!day.isEmpty())
            days.insert(date);
    });
    return days;
}

} // namespace

PlannerSidePane::PlannerSidePane(const Program &program, PanelColors &colors, const PlannerFiles &files,
                                 QWidget *parent)
    : QWidget(parent)
    , m_search(new SearchBox(u"plannerSearch"_s, u"Search all years"_s,
                             u"Type a part of an appointment and press Enter"_s, this))
{
    setObjectName(u"leftPane"_s);
    setMinimumWidth(TypeScale::wide(oneMonthWidth) - 4);
    QScrollArea *scroll = makeScrolling(makePanels(program, colors, files), u"leftPaneScroll"_s, this);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(12);
    rows->addWidget(m_search);
    rows->addWidget(scroll, 1);
    connect(m_search, &SearchBox::returnPressed, this, [this] {
        if (const QString text = m_search->text().trimmed(); !text.isEmpty())
            emit searchRequested(text);
    });
    connect(m_calendar, &PlannerCalendar::dateChosen, this, &PlannerSidePane::dateChosen);
    connect(m_calendar, &PlannerCalendar::dayEntered, this, &PlannerSidePane::dayEntered);
    connect(m_calendar, &PlannerCalendar::edgeReached, this,
            [this, &style = program.state.dateStyle] { emit said(PlannerLines::beyondDates(style)); });
}

QWidget *PlannerSidePane::makePanels(const Program &program, PanelColors &colors, const PlannerFiles &files)
{
    auto *content = new QWidget;
    // As wide as the pane, whatever the calendar would like.
    content->setMinimumWidth(1);
    auto *calendarPanel = named(new PanelFrame, u"calendarPanel"_s);
    auto *calendarLayout = new QVBoxLayout(calendarPanel);
    calendarLayout->setContentsMargins(12, 10, 12, 12);
    m_calendar = new PlannerCalendar(
        program.clock, [&files](int year) { return daysWithEntries(files, year); }, calendarPanel);
    calendarLayout->addWidget(m_calendar);

    auto *comingPanel = named(new PanelFrame, u"comingUpPanel"_s);
    auto *comingLayout = new QVBoxLayout(comingPanel);
    comingLayout->setContentsMargins(18, 14, 12, 12);
    m_comingUp = new ComingUp(program, files, comingPanel);
    comingLayout->addWidget(m_comingUp);

    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(calendarPanel);
    layout->addWidget(comingPanel, 1);
    for (QWidget *panel : {calendarPanel, comingPanel})
        colors.addPanel(panel);
    return content;
}

void PlannerSidePane::setDate(QDate date)
{
    m_calendar->setDate(date);
    m_comingUp->setDate(date);
}

void PlannerSidePane::setOptions(const CalendarOptions &options)
{
    m_shownMonths = options.shownMonths();
    m_calendar->setOptions(options);
}

void PlannerSidePane::refreshMarks()
{
    m_calendar->refreshMarks();
    m_comingUp->refresh();
}

void PlannerSidePane::showToday()
{
    m_calendar->showToday();
    m_comingUp->refresh();
}

void PlannerSidePane::focusSearch()
{
    m_search->startAgain();
}

int PlannerSidePane::fitWindow(QSize window)
{
    const int pane =
        TypeScale::wide(window.width() < TypeScale::wide(narrowBelow) ? narrowWidth : oneMonthWidth);
    setMinimumWidth(pane - 4);
    const bool showsBoth = window.width() >= TypeScale::wide(wideFrom) && m_shownMonths == 2;
    return (showsBoth ? TypeScale::wide(twoMonthsWidth) : pane) +
           (window.height() < shortBelow ? scrollBarRoom : 0);
}
