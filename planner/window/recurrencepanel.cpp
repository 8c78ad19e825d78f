#include "planner/window/recurrencepanel.h"

#include "planner/model/lines.h"
#include "planner/model/messages.h"
#include "planner/window/plannercalendar.h"
#include "planner/window/recurrenceform.h"
#include "shell/controls/controls.h"
#include "shell/controls/monthview.h"
#include "shell/core/dates.h"
#include "shell/core/slicedwork.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QKeyEvent>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

RecurrencePanel::~RecurrencePanel() = default;

void RecurrencePanel::open(const Appointment &appointment, QDate date, UntimedPlacement placement,
                           const CalendarOptions &options)
{
    m_appointment = appointment;
    m_placement = placement;
    const QString words =
        appointment.time.isEmpty() ? appointment.text : QString(appointment.time + u' ' + appointment.text);
    m_title->setText(u"Recurrence Option: \u201c"_s + words.trimmed() + u'\u201d');
    m_form->reset(date);
    m_beginning->setText(Dates::boxText(date, m_program.state.dateStyle));
    m_end->setText(Dates::boxText(date.addYears(1), m_program.state.dateStyle));
    m_occurrences->setText(u"10"_s);
    m_endBy->button(EndDate)->setChecked(true);
    m_calendarSets->button(Beginning)->setChecked(true);
    applyOptions(*m_month, options, m_program.clock.today());
    showCalendarDate();
    m_body->setCurrentIndex(0);
    m_form->findChild<QRadioButton *>()->setFocus();
}

bool RecurrencePanel::isRunning() const
{
    return m_work->isRunning();
}

std::optional<QDate> RecurrencePanel::dateOf(const FieldBox *box) const
{
    return Dates::parse(box->text(), m_program.state.dateStyle, m_program.clock.today());
}

std::optional<QString> RecurrencePanel::read(Recurrence &recurrence) const
{
    if (const auto reason = m_form->read(recurrence))
        return reason;
    const auto beginning = dateOf(m_beginning);
    if (!beginning)
        return PlannerLines::noBeginning();
    recurrence.beginning = *beginning;
    if (m_endBy->checkedId() == Occurrences) {
        recurrence.end.reset();
        recurrence.occurrences = m_occurrences->text().trimmed().toInt();
        return recurrence.occurrences < 1 ? std::optional(PlannerLines::noOccurrences()) : std::nullopt;
    }
    recurrence.end = dateOf(m_end);
    if (!recurrence.end)
        return PlannerLines::noEnd();
    return *recurrence.end < *beginning ? std::optional(PlannerLines::endBeforeBeginning()) : std::nullopt;
}

Recurrence RecurrencePanel::limited(const Recurrence &recurrence)
{
    Recurrence within = withinTenYears(recurrence);
    if (within == recurrence && !exceedsTenYears(recurrence))
        return within;
    m_program.dialogs.ask(this, PlannerMessages::tenYearLimit());
    if (within.end)
        m_end->setText(Dates::boxText(*within.end, m_program.state.dateStyle));
    else
        m_occurrences->setText(QString::number(within.occurrences));
    showCalendarDate();
    return within;
}

void RecurrencePanel::checkLimit()
{
    Recurrence recurrence;
    if (!read(recurrence))
        limited(recurrence);
}

void RecurrencePanel::calendarMoved()
{
    FieldBox *box = m_calendarSets->checkedId() == End ? m_end : m_beginning;
    box->setText(Dates::boxText(m_month->selectedDate(), m_program.state.dateStyle));
    if (box == m_end)
        m_endBy->button(EndDate)->setChecked(true);
}

void RecurrencePanel::showCalendarDate()
{
    const QSignalBlocker quiet(m_month);
    if (const auto date = dateOf(m_calendarSets->checkedId() == End ? m_end : m_beginning))
        m_month->setSelectedDate(*date);
}

void RecurrencePanel::insert()
{
    if (!m_form->kind()) {
        QApplication::beep();
        m_program.dialogs.ask(this, PlannerMessages::noRecurrenceSelected());
        return;
    }
    Recurrence recurrence;
    if (const auto reason = read(recurrence))
        emit said(*reason);
    else
        walk(RecurrenceAction::Insert, limited(recurrence));
}

void RecurrencePanel::remove()
{
    Recurrence recurrence;
    if (const auto reason = read(recurrence)) {
        emit said(*reason);
        return;
    }
    if (m_program.dialogs.ask(this, PlannerMessages::removeRecurrence()) == Answer::Yes)
        walk(RecurrenceAction::Remove, limited(recurrence));
}

void RecurrencePanel::walk(RecurrenceAction action, const Recurrence &recurrence)
{
    m_action = action;
    m_run = std::make_unique<RecurrenceRun>(m_program.folder, m_placement, action, m_appointment, recurrence);
    setRunning(true);
    emit said(PlannerLines::updating());
    // What a full disk refuses once it would refuse for every date that follows.
    m_work->start([this] { return m_run->step() && m_run->failed() == 0; });
}

void RecurrencePanel::showProgress()
{
    m_progress->setMaximum(std::max(1, m_run->estimate()));
    m_progress->setValue(std::min(m_run->done(), m_progress->maximum()));
}

void RecurrencePanel::finish(bool wasStopped)
{
    setRunning(false);
    emit filesChanged();
    const auto run = std::exchange(m_run, {});
    const bool isInsert = m_action == RecurrenceAction::Insert;
    const QString done = isInsert ? PlannerLines::made(run->made()) : PlannerLines::removed(run->removed());
    if (wasStopped) {
        emit said({});
        if (run->lastDate().isValid())
            m_program.dialogs.ask(this, PlannerMessages::recurrenceStopped(run->lastDate(), m_action));
        return;
    }
    if (run->failed() > 0) {
        emit said(
            PlannerLines::diskRefused(Dates::numbers(run->lastDate(), m_program.state.dateStyle), done));
        return;
    }
    if (run->done() == 0) {
        emit said(PlannerLines::noDateInRange());
        return;
    }
    const auto report = isInsert ? PlannerMessages::recurrenceReport(run->made(), run->full()) : std::nullopt;
    if (report)
        m_program.dialogs.ask(this, *report);
    emit left();
    // Last, since the day that comes back says in which row it is.
    emit said(isInsert && !report ? PlannerLines::nothingMade() : done);
}

void RecurrencePanel::setRunning(bool isRunning)
{
    const QString reason = isRunning ? PlannerLines::updating() : QString();
    for (QPushButton *button : {m_ok, m_remove, m_cancel})
        setUnavailable(button, reason);
    m_stop->setChecked(false);
    m_progress->setValue(0);
    m_body->setCurrentIndex(isRunning ? m_body->indexOf(m_progressPanel) : 0);
    emit busyChanged(isRunning);
    (isRunning ? static_cast<QWidget *>(m_stop) : m_ok)->setFocus();
}

/// What Enter presses: the button that has the focus, else OK.
QPushButton *RecurrencePanel::defaultButton() const
{
    auto *focused = qobject_cast<QPushButton *>(focusWidget());
    return focused ? focused : m_ok;
}

void RecurrencePanel::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (!isRunning())
            emit left();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!isRunning())
            defaultButton()->click();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
