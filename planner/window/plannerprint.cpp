// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/plannerprint.h"

#include "planner/model/lines.h"
#include "planner/model/plannerpages.h"
#include "planner/window/daterangedialog.h"
#include "planner/window/dayeditor.h"
#include "planner/window/daysview.h"
#include "planner/window/plannerviews.h"
#include "shell/controls/datebox.h"
#include "shell/core/calendardates.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/program/program.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

PlannerPrint::PlannerPrint(Program &program, FunctionWindow *window, Sources sources,
                           std::function<bool()> mayReplaceDay)
    : QObject(window)
    , m_program(program)
    , m_window(window)
    , m_from(sources)
    , m_mayReplaceDay(std::move(mayReplaceDay))
{}

void PlannerPrint::addCommands(Commands &commands, QMenu *menu)
{
    QAction *print = commands.add(
        menu, u"mOPrt"_s, u"&Print"_s, [this] { printShown(); }, [this] { return whyNotShown(); },
        CommonKeys::print);
    commands.add(menu, u"mOPDay"_s, u"Print &Day"_s, [this] { printDay(); });
    commands.add(menu, u"mOPWeek"_s, u"Print &Week"_s, [this] { printDays(m_from.views->week()); });
    commands.add(menu, u"mOPMonth"_s, u"Print &Month"_s, [this] { printDays(m_from.views->month()); });
    commands.add(menu, u"mOPRange"_s, u"Print D&ates"_s, [this] { printRange(); });
    commands.tool(print, "print"_L1, u"Print"_s);
    commands.separateTools();
}

QString PlannerPrint::whyNotShown() const
{
    return m_from.views->areDatesShown() || m_window->isPreviewShown() ? QString()
                                                                       : PlannerLines::inCalendarViewsOnly();
}

void PlannerPrint::printShown()
{
    if (const DaysView *view = m_from.views->shownDays())
        printDays(view);
    else
        printDay();
}

void PlannerPrint::printDay()
{
    const QDate date = m_from.views->date();
    const PlannerDay day = date == m_from.day->date() ? m_from.day->typed() : m_from.files.peek(date);
    const PlannerPages::Notes notes = m_from.views->notes().texts(date, date);
    m_window->showPreview(
        [=](const PageContext &context) { return PlannerPages::day(date, day, context, notes); },
        u"Planner "_s + date.toString(Qt::ISODate));
}

void PlannerPrint::printDays(const DaysView *view)
{
    // The page shows what the files hold.
    if (!m_mayReplaceDay())
        return;
    const QDate date = m_from.views->date();
    const auto page = [=, this](const PageContext &context) {
        return view->page(date, m_from.options, context);
    };
    if (view == m_from.views->month())
        m_window->showLandscape(page, view->printName(date));
    else
        m_window->showPreview(page, view->printName(date));
}

void PlannerPrint::printRange()
{
    if (!m_mayReplaceDay())
        return;
    const QDate first = m_from.views->date();
    const QDate last = CalendarDates::within(first.addMonths(1).addDays(-1));
    DateRangeDialog dialog(first, last, {m_program.state.dateStyle, m_program.clock}, m_window);
    if (m_program.dialogs.run(dialog) != QDialog::Accepted)
        return;
    const auto page = [this, from = dialog.from(), to = dialog.to()](const PageContext &context) {
        return PlannerPages::rangeOf(m_from.files, from, to, context, m_from.views->notes().texts(from, to));
    };
    m_window->showPreview(page, u"Planner dates"_s);
}
