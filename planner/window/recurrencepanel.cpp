// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/recurrencepanel.h"

#include "planner/model/lines.h"
#include "planner/model/messages.h"
#include "planner/model/removaltrash.h"
#include "planner/window/recurrenceform.h"
#include "planner/window/recurrenceoutlook.h"
#include "planner/window/recurrencerange.h"
#include "shell/controls/datebox.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"
#include "shell/core/slicedwork.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QProgressBar>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int widestBar = 640;
constexpr int besides = 72; ///< margins and the scroll bar
constexpr int columnGap = 32;
constexpr int outlookGap = 24;
constexpr int leastOutlook = 170;

} // namespace

RecurrencePanel::RecurrencePanel(Program &program, QWidget *parent)
    : TaskPanel(u"recurrencePanel"_s, u"Recurrence Option"_s, parent)
    , m_program(program)
    , m_work(new SlicedWork(this))
    , m_columns(new QBoxLayout(QBoxLayout::LeftToRight))
    , m_kinds(new QBoxLayout(QBoxLayout::LeftToRight))
    , m_range(new RecurrenceRange(program, this))
    , m_form(new RecurrenceForm({program.state.dateStyle, program.clock}, this))
    , m_outlook(new RecurrenceOutlook(program.folder, program.state.dateStyle, this))
    , m_outlookSoon(new QTimer(this))
    , m_body(new QStackedWidget(this))
{
    auto *content = new QWidget;
    content->setLayout(m_columns);
    m_columns->setContentsMargins(0, 0, 8, 0);
    m_columns->setSpacing(columnGap);
    m_columns->addWidget(m_range);
    m_columns->addLayout(m_kinds, 1);
    m_kinds->addWidget(m_form);
    m_kinds->addWidget(m_outlook, 1);
    m_body->addWidget(makeProgressPanel());
    m_body->addWidget(makeScrolling(content, u"recurrenceScroll"_s, this));
    setWork(m_body);
    makeFoot();
    connect(m_form, &RecurrenceForm::kindChosen, this, &RecurrencePanel::checkLimit);
    connect(m_form, &RecurrenceForm::changed, m_outlookSoon, qOverload<>(&QTimer::start));
    connect(m_range, &RecurrenceRange::changed, m_outlookSoon, qOverload<>(&QTimer::start));
    connect(m_outlookSoon, &QTimer::timeout, this, &RecurrencePanel::refreshOutlook);
    m_outlookSoon->setSingleShot(true);
    connect(m_outlook, &RecurrenceOutlook::told, this, &RecurrencePanel::refreshWords);
    connect(m_form, &RecurrenceForm::said, this, &RecurrencePanel::said);
    connect(m_range, &RecurrenceRange::said, this, &RecurrencePanel::said);
    connect(m_work, &SlicedWork::progressed, this, &RecurrencePanel::showProgress);
    connect(m_work, &SlicedWork::finished, this, &RecurrencePanel::finish);
}

RecurrencePanel::~RecurrencePanel() = default;

QWidget *RecurrencePanel::makeProgressPanel()
{
    auto *panel = named(new QWidget(this), u"progressPanel"_s);
    m_progress = named(new QProgressBar(panel), u"updateProgress"_s);
    m_progress->setAccessibleName(u"Progress of the update"_s);
    m_progress->setMaximumWidth(widestBar);
    m_stop = named(new QCheckBox(u"If Needed - Click ONCE to Stop Updating!"_s, panel), u"stopUpdating"_s);
    QLabel *note = makeQuietLabel(
        u" Please Do Not Try to Cancel Program Operation during this action or Program may Stop "
        u"Functioning or Files may "_s,
        panel);
    note->setWordWrap(true);
    auto *column = new QVBoxLayout;
    column->setSpacing(12);
    column->addStretch(1);
    column->addWidget(makeHeading(u"Program is Updating Files:(This may take a minute of two)"_s, panel));
    column->addWidget(m_progress);
    column->addWidget(m_stop, 0, Qt::AlignLeft);
    column->addWidget(note);
    column->addStretch(2);
    auto *middle = new QHBoxLayout(panel);
    middle->addStretch(1);
    middle->addLayout(column, 100);
    middle->addStretch(1);
    connect(m_stop, &QCheckBox::toggled, this, [this](bool isTicked) {
        if (isTicked)
            m_work->stop();
    });
    return panel;
}

void RecurrencePanel::makeFoot()
{
    m_remove = addButton(u"recurrenceRemove"_s, u"&Remove This Recurrence"_s, ButtonKind::Plain, Side::Left);
    m_ok = addButton(u"recurrenceOk"_s, u"O&K"_s, ButtonKind::Main);
    m_ok->setAccessibleName(u"OK"_s);
    m_ok->setMinimumWidth(88);
    m_cancel = setLeaveButton(u"recurrenceCancel"_s, u"&Cancel"_s);
    connect(m_ok, &QPushButton::clicked, this, &RecurrencePanel::insert);
    connect(m_remove, &QPushButton::clicked, this, &RecurrencePanel::remove);
}

/// Where dates and kinds do not fit beside each other, they stand below each other and scroll.
void RecurrencePanel::resizeEvent(QResizeEvent *event)
{
    TaskPanel::resizeEvent(event);
    const int room = width() - besides - columnGap - m_form->minimumSizeHint().width();
    const int least = m_range->leastWidth();
    m_isWide = room >= least + outlookGap + leastOutlook;
    m_kinds->setDirection(m_isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_kinds->setSpacing(m_isWide ? outlookGap : outlookGap / 3);
    m_outlook->setTall(m_isWide);
    refreshWords();
    m_columns->setDirection(room < least ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_range->fitWidth(room < least ? width() - besides : m_isWide ? room - outlookGap - leastOutlook : room);
}

void RecurrencePanel::open(const Appointment &appointment, QDate date, UntimedPlacement placement,
                           const CalendarOptions &options)
{
    m_appointment = appointment;
    m_placement = placement;
    const QString words =
        appointment.time.isEmpty() ? appointment.text : QString(appointment.time + u' ' + appointment.text);
    setTitle(u"Recurrence Option: \u201c"_s + words.trimmed() + u'\u201d');
    m_form->reset(date);
    m_range->reset(date, options);
    m_body->setCurrentIndex(1);
    if (const auto likely = likelyRecurrence(m_program.folder, appointment, date))
        m_form->propose(*likely);
    m_form->focusKind();
    refreshOutlook();
}

bool RecurrencePanel::isRunning() const
{
    return m_work->isRunning();
}

void RecurrencePanel::leave()
{
    if (!isRunning())
        TaskPanel::leave();
}

std::optional<QString> RecurrencePanel::read(Recurrence &recurrence) const
{
    const auto reason = m_form->read(recurrence);
    return reason ? reason : m_range->read(recurrence);
}

Recurrence RecurrencePanel::limited(const Recurrence &recurrence)
{
    Recurrence within = withinTenYears(recurrence);
    if (within == recurrence && !exceedsTenYears(recurrence))
        return within;
    m_program.dialogs.ask(this, PlannerMessages::tenYearLimit());
    m_range->showEnd(within);
    return within;
}

void RecurrencePanel::checkLimit()
{
    Recurrence recurrence;
    if (!read(recurrence))
        limited(recurrence);
}

/// Where the outlook stands low, its sum stands in the foot.
void RecurrencePanel::refreshWords()
{
    setWords(!m_isWide && !isRunning() ? m_outlook->sum() : QString());
}

/// Of what would be walked: brought within ten years, as the walk is.
void RecurrencePanel::refreshOutlook()
{
    Recurrence recurrence;
    if (isRunning())
        m_outlook->stop();
    else if (const auto reason = read(recurrence))
        m_outlook->showReason(*reason);
    else
        m_outlook->show(m_appointment, withinTenYears(recurrence), m_form->kind().has_value());
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
    if (action == RecurrenceAction::Remove)
        m_trash = std::make_unique<RemovalTrash>(m_program.folder, m_appointment, recurrence,
                                                 m_program.clock.now());
    m_outlookSoon->stop();
    m_outlook->stop();
    setRunning(true);
    emit said(PlannerLines::updating());
    // What a full disk refuses once it would refuse for every date that follows.
    m_work->start([this] { return (m_trash && m_trash->step()) || (m_run->step() && m_run->failed() == 0); });
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
    report(*run, wasStopped);
    const QString words = QString(m_appointment.time + u' ' + m_appointment.text).trimmed();
    RecordChange change = run->change();
    if (const auto trash = std::exchange(m_trash, {})) {
        trash->settle(run->removedFrom(), change);
        if (!trash->isKept())
            emit said(FrameLines::trashOutOfReach());
    }
    emit walked(m_action == RecurrenceAction::Insert ? PlannerLines::repeated(words)
                                                     : PlannerLines::recurrenceRemoved(words),
                change);
}

void RecurrencePanel::report(RecurrenceRun &run, bool wasStopped)
{
    const bool isInsert = m_action == RecurrenceAction::Insert;
    const QString done = isInsert ? PlannerLines::made(run.made()) : PlannerLines::removed(run.removed());
    const bool isOnDisk = run.finish() && run.failed() == 0;
    if (wasStopped && isOnDisk) {
        emit said({});
        if (run.lastDate().isValid())
            m_program.dialogs.ask(this, PlannerMessages::recurrenceStopped(run.lastDate(), m_action));
        return;
    }
    if (!isOnDisk) {
        emit said(PlannerLines::diskRefused(Dates::numbers(run.lastDate(), m_program.state.dateStyle), done));
        return;
    }
    if (run.done() == 0) {
        emit said(PlannerLines::noDateInRange());
        return;
    }
    const auto report = isInsert ? PlannerMessages::recurrenceReport(run.made(), run.full()) : std::nullopt;
    if (report)
        m_program.dialogs.ask(this, *report);
    leave();
    // Last, since the day that comes back says in which row it is.
    const QString line = isInsert && !report ? PlannerLines::nothingMade() : done;
    emit said(run.isCutShort() ? line + u". "_s + PlannerLines::beyondDates(m_program.state.dateStyle)
                               : line);
}

void RecurrencePanel::setRunning(bool isRunning)
{
    const QString reason = isRunning ? PlannerLines::updating() : QString();
    for (QPushButton *button : {m_ok, m_remove, m_cancel})
        setUnavailable(button, reason);
    refreshWords();
    m_stop->setChecked(false);
    m_progress->setValue(0);
    m_body->setCurrentIndex(isRunning ? 0 : 1);
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
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        TaskPanel::keyPressEvent(event);
    else if (!isRunning())
        defaultButton()->click();
}
