// The views of the planner's window beside the day itself, the walks over many days, and its printed pages.

#include "planner/window/plannerwindow.h"

#include "planner/model/lines.h"
#include "planner/model/messages.h"
#include "planner/model/plannersearch.h"
#include "planner/model/todoimportrun.h"
#include "planner/window/calendaroptionspanel.h"
#include "planner/window/daterangedialog.h"
#include "planner/window/dayeditor.h"
#include "planner/window/monthgrid.h"
#include "planner/window/plannersidepane.h"
#include "planner/window/recurrencepanel.h"
#include "planner/window/searchpanel.h"
#include "planner/window/weekview.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/datebox.h"
#include "shell/controls/flowtoolbar.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"
#include "shell/core/slicedwork.h"

#include <QAction>
#include <QMenuBar>
#include <QStackedWidget>

using namespace Qt::Literals::StringLiterals;

/// A page on the screen gives way: nothing goes on behind it.
void Zcalandar1::showView(QWidget *view)
{
    closePreview();
    m_views->setCurrentWidget(view);
    // A month and the recurrence panel need the whole width, and have calendars of their own.
    m_side->setVisible(view != m_month && view != m_recurrence);
    refreshCommands();
}

void Zcalandar1::showDayView()
{
    const bool isNew = m_views->currentWidget() != m_day;
    showView(m_day);
    if (isNew)
        m_day->focusFirstEmptyRow();
}

void Zcalandar1::showWeek()
{
    if (mayReplaceDay(PlannerMessages::saveBeforeNextAction()))
        openWeek(viewedDate());
}

void Zcalandar1::showMonth()
{
    if (mayReplaceDay(PlannerMessages::saveBeforeNextAction()))
        openMonth(viewedDate());
}

void Zcalandar1::openWeek(QDate date)
{
    m_week->show(date, m_options, clock().today());
    showView(m_week);
    m_week->setFocus();
    activity().say({});
}

void Zcalandar1::openMonth(QDate date)
{
    m_month->show(date, m_options, clock().today());
    showView(m_month);
    m_month->setFocus();
    activity().say({});
}

void Zcalandar1::showOptions()
{
    m_optionsPanel->setOptions(CalendarOptions::read(program().settings));
    showView(m_optionsPanel);
    m_optionsPanel->setFocus();
    activity().say({});
}

void Zcalandar1::takeOptions()
{
    const CalendarOptions options = m_optionsPanel->options();
    if (options.months != m_options.months)
        forgetPlace(m_splitter);
    setOptions(options);
    showDayView();
    if (!options.write(program().settings))
        activity().say(FrameLines::settingNotSaved());
}

void Zcalandar1::focusSearch()
{
    closePreview();
    if (!m_side->isVisible())
        showDayView();
    m_side->focusSearch();
}

void Zcalandar1::search(const QString &text)
{
    const BusyCursor busy;
    PlannerSearch search(m_files, text);
    while (search.step()) {}
    if (search.hits().empty()) {
        activity().say(PlannerLines::nothingFound(text));
        return;
    }
    activity().say({});
    m_searchPanel->show(text, search.hits(), clock().today());
    showView(m_searchPanel);
    m_searchPanel->setFocus();
}

void Zcalandar1::openHit(QDate date, int row)
{
    goTo(date);
    if (m_day->date() == date)
        m_day->focusRow(row);
}

void Zcalandar1::showRecurrence()
{
    const Appointment appointment = m_day->currentAppointment();
    if (appointment.isEmpty()) {
        activity().say(PlannerLines::rowIsEmpty());
        return;
    }
    if (!mayReplaceDay(PlannerMessages::saveBeforeNextAction()))
        return;
    activity().say({});
    showView(m_recurrence);
    m_recurrence->open(appointment, m_day->date(), m_day->placement(), m_options);
}

void Zcalandar1::importToDoItems()
{
    if (ask(PlannerMessages::importToDoItems()) != Answer::Yes ||
        !mayReplaceDay(PlannerMessages::saveBeforeNextAction()))
        return;
    auto items = ToDoImport::items(program().folder, program().state.dateStyle, clock().today());
    if (items.empty()) {
        ask(PlannerMessages::nothingToImport());
        return;
    }
    m_import = std::make_unique<ToDoImportRun>(m_files, m_day->placement(), std::move(items), m_day->date());
    showDayView();
    setWorking(true);
    activity().say(PlannerLines::updating());
    m_importWork->start([this] { return m_import->step(); });
}

void Zcalandar1::finishImport(bool wasStopped)
{
    setWorking(false);
    activity().showProgress(0, 0);
    filesChanged();
    m_day->focusCurrentRow();
    activity().say(m_import->report(wasStopped, program().state.dateStyle));
    m_import.reset();
}

/// While files are updated, only what stops it can be used.
void Zcalandar1::setWorking(bool isWorking)
{
    setBusy(isWorking);
    toolbar().setEnabled(!isWorking);
    menuBar()->setEnabled(!isWorking);
    m_side->setEnabled(!isWorking);
    m_day->setEnabled(!isWorking);
}

void Zcalandar1::filesChanged()
{
    m_side->refreshMarks();
    m_day->reload();
}

QDate Zcalandar1::viewedDate() const
{
    const QWidget *view = m_views->currentWidget();
    const QDate date = view == m_week ? m_week->date() : view == m_month ? m_month->date() : QDate();
    return date.isValid() ? date : m_day->date();
}

PlannerPages::Paper Zcalandar1::paper(const PageSetup &setup) const
{
    return {setup, program().state.dateStyle, m_options.firstDay(), clock().today(),
            program().state.familyName.text()};
}

Page Zcalandar1::dayPage(const PageSetup &setup) const
{
    const QDate date = viewedDate();
    return PlannerPages::day(date, date == m_day->date() ? m_day->typed() : m_files.peek(date), paper(setup));
}

Page Zcalandar1::weekPage(const PageSetup &setup) const
{
    const QDate start = PlannerPages::weekStart(viewedDate(), m_options.firstDay());
    return PlannerPages::week(start, m_files.days(start, start.addDays(6)), paper(setup));
}

Page Zcalandar1::monthPage(const PageSetup &setup) const
{
    const QDate date = viewedDate();
    const QDate first(date.year(), date.month(), 1);
    return PlannerPages::month(date, m_files.days(first, first.addMonths(1).addDays(-1)), paper(setup));
}

Page Zcalandar1::page(const PageSetup &setup) const
{
    const QWidget *view = m_views->currentWidget();
    return view == m_week ? weekPage(setup) : view == m_month ? monthPage(setup) : dayPage(setup);
}

void Zcalandar1::preview(PageOf pageOf, const QString &jobName)
{
    showPreview([this, pageOf](const PageSetup &setup) { return (this->*pageOf)(setup); }, jobName);
    refreshCommands();
}

void Zcalandar1::printShown()
{
    const QWidget *view = m_views->currentWidget();
    if (view == m_week)
        printWeek();
    else if (view == m_month)
        printMonth();
    else
        printDay();
}

void Zcalandar1::printDay()
{
    preview(&Zcalandar1::dayPage, u"Planner "_s + viewedDate().toString(Qt::ISODate));
}

void Zcalandar1::printWeek()
{
    // The page shows what the files hold.
    if (mayReplaceDay(PlannerMessages::saveBeforeNextAction()))
        preview(&Zcalandar1::weekPage, u"Planner week "_s + viewedDate().toString(Qt::ISODate));
}

void Zcalandar1::printMonth()
{
    if (mayReplaceDay(PlannerMessages::saveBeforeNextAction()))
        preview(&Zcalandar1::monthPage, u"Planner "_s + viewedDate().toString(u"yyyy-MM"_s));
}

void Zcalandar1::printRange()
{
    if (!mayReplaceDay(PlannerMessages::saveBeforeNextAction()))
        return;
    const QDate first = viewedDate();
    DateRangeDialog dialog(first, first.addMonths(1).addDays(-1), {program().state.dateStyle, clock()}, this);
    if (program().dialogs.run(dialog) != QDialog::Accepted)
        return;
    const QDate from = dialog.from();
    const QDate to = dialog.to();
    showPreview(
        [this, from, to](const PageSetup &setup) {
            return PlannerPages::range(from, to, m_files.days(from, to), paper(setup));
        },
        u"Planner dates"_s);
    refreshCommands();
}
