// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/dayeditor.h"

#include "planner/model/lines.h"
#include "planner/model/messages.h"
#include "planner/model/plannertrash.h"
#include "planner/model/usualtime.h"
#include "planner/window/dayform.h"
#include "planner/window/noteline.h"
#include "planner/window/rowheads.h"
#include "shell/controls/controls.h"
#include "shell/controls/steptitle.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

DayEditor::DayEditor(Program &program, PlannerFiles &files, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_files(files)
    , m_householdNotes(program)
    , m_title(new StepTitle({u"SSPanel4"_s, u"day"_s, u"Today"_s}, this))
    , m_heads(new RowHeads(program, this))
    , m_form(new DayForm)
    , m_scroll(makeScrolling(m_form, u"dayScroll"_s, this))
    , m_notes(new NoteLine(m_householdNotes, this))
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(20, 10, 20, 14);
    rows->setSpacing(4);
    rows->addWidget(m_title);
    rows->addWidget(m_notes, 0, Qt::AlignLeft);
    auto *heads = new QHBoxLayout;
    heads->addWidget(m_heads, 1);
    heads->addStretch();
    rows->addLayout(heads);
    rows->addWidget(m_scroll, 1);
    rows->addWidget(makeLine(this));
    rows->addSpacing(4);
    rows->addWidget(makeFoot());
    m_form->setReadOnly(m_program.folder.isReadOnly());
    connect(m_title, &StepTitle::stepped, this,
            [this](int days) { emit dateRequested(m_date.addDays(days)); });
    connect(m_title, &StepTitle::todayRequested, this,
            [this] { emit dateRequested(m_program.clock.today()); });
    connect(m_heads, &RowHeads::placementChosen, this, &DayEditor::refreshModified);
    connect(m_heads, &RowHeads::said, this, &DayEditor::said);
    connect(m_form, &DayForm::edited, this, &DayEditor::noteEdited);
    connect(m_form, &DayForm::rowEntered, this, &DayEditor::enterRow);
    connect(m_form, &DayForm::said, this, &DayEditor::said);
}

QWidget *DayEditor::makeFoot()
{
    auto *foot = new QWidget;
    QPushButton *clear = makeButton(u"clearDay"_s, u"&Clear Day"_s, foot);
    QPushButton *save = makeButton(u"saveDay"_s, u"&Save Day"_s, foot, ButtonKind::Main);
    QPushButton *exit = makeButton(u"exitPlanner"_s, u"E&xit"_s, foot);
    m_unsaved = named(makeQuietLabel({}, foot), u"unsavedWords"_s);
    m_sortedLast = named(new ElidedLabel(foot), u"sortedLastWords"_s);
    m_sortedLast->setFont(TypeScale::label());
    m_sortedLast->setForegroundRole(ThemeRole::quiet);
    auto *layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(clear);
    layout->addWidget(m_unsaved);
    layout->addSpacing(8);
    layout->addWidget(m_sortedLast, 1);
    layout->addWidget(save);
    layout->addWidget(exit);
    for (QPushButton *button : {clear, save})
        setUnavailable(button, m_program.folder.whyReadOnly());
    connect(clear, &QPushButton::clicked, this, &DayEditor::clear);
    connect(save, &QPushButton::clicked, this, &DayEditor::saveByCommand);
    connect(exit, &QPushButton::clicked, this, [this] { window()->close(); });
    return foot;
}

void DayEditor::load(QDate date)
{
    if (std::exchange(m_date, date) != date)
        m_lastTyped = {};
    const PlannerDay asFile = m_files.read(date);
    m_form->setDay(asFile);
    const PlannerDay asShown = m_form->day();
    m_times.load(asFile.times, asShown.times);
    m_texts.load(asFile.texts, asShown.texts);
    const DateStyle style = m_program.state.dateStyle;
    m_title->setTitle(Dates::longText(date, style), Dates::statusText(date, style));
    m_notes->setDate(date);
    refreshModified();
    emit loaded(date);
}

void DayEditor::refreshNotes()
{
    m_notes->setDate(m_date);
}

PlannerDay DayEditor::typed() const
{
    PlannerDay day = m_form->day();
    day.times = m_times.typed(day.times);
    day.texts = m_texts.typed(day.texts);
    return day;
}

bool DayEditor::isModified() const
{
    const PlannerDay day = m_form->day();
    return m_times.isModified(day.times) || m_texts.isModified(day.texts);
}

Appointment DayEditor::currentAppointment() const
{
    const Appointment current = appointmentOf(m_form->currentRow());
    return current.isEmpty() && has(m_lastTyped) ? m_lastTyped : current;
}

Appointment DayEditor::appointmentOf(int row) const
{
    const PlannerDay day = typed();
    return Appointment::ofRow(day.times[std::size_t(row)], day.texts[std::size_t(row)]);
}

void DayEditor::noteEdited()
{
    m_lastTyped = appointmentOf(m_form->currentRow());
    refreshModified();
}

bool DayEditor::has(const Appointment &appointment) const
{
    const PlannerDay day = typed();
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (Appointment::ofRow(day.times[row], day.texts[row]) == appointment)
            return true;
    }
    return false;
}

UntimedPlacement DayEditor::placement() const
{
    return m_heads->placement();
}

void DayEditor::focusRow(int row)
{
    m_form->focusRow(row);
}

void DayEditor::focusCurrentRow()
{
    m_form->focusRow(m_form->currentRow());
}

void DayEditor::focusFirstEmptyRow()
{
    m_form->focusRow(m_form->firstEmptyRow());
}

void DayEditor::leaveFilledRow()
{
    if (m_form->isAncestorOf(window()->focusWidget()) && !appointmentOf(m_form->currentRow()).isEmpty())
        focusFirstEmptyRow();
}

bool DayEditor::save()
{
    const PlannerDay day = inTimeOrder(typed(), placement());
    RecordChange change;
    m_files.add(m_date, day, change);
    if (const auto lost =
            PlannerTrash::ofDay(m_program.folder, m_date, m_program.state.dateStyle, m_program.clock.now());
        lost && day.isEmpty())
        change.throwAway(*lost);
    if (!CalendarDates::has(m_date) || !change.commit(m_program.folder)) {
        emit said(PlannerLines::notSaved());
        return false;
    }
    emit saved();
    reload();
    emit said({}); // a refusal of the disk before
    emit written(m_date, change);
    m_program.dialogs.ask(window(), PlannerMessages::daySaved());
    return true;
}

void DayEditor::saveByCommand()
{
    if (typed().isEmpty() && m_program.dialogs.ask(window(), PlannerMessages::nothingToSave()) == Answer::No)
        return;
    if (!save())
        return;
    focusFirstEmptyRow();
    emit savedByCommand();
}

void DayEditor::clear()
{
    if (typed().isEmpty()) {
        m_program.dialogs.ask(window(), PlannerMessages::nothingToClear());
        return;
    }
    if (m_program.dialogs.ask(window(), PlannerMessages::clearDay(m_title->title())) != Answer::Yes)
        return;
    const PlannerDay before = m_form->day();
    m_form->setDay({});
    refreshModified();
    focusRow(0);
    emit said(PlannerLines::cleared());
    noteExchange(PlannerLines::clearedDay(dayText()), before);
}

void DayEditor::copy()
{
    const PlannerDay day = typed();
    if (day.isEmpty()) {
        m_program.dialogs.ask(window(), PlannerMessages::nothingToCopy());
        return;
    }
    m_copied = day;
    emit said(PlannerLines::copied(day.entryCount()));
}

void DayEditor::paste()
{
    if (!m_copied)
        return;
    const PlannerDay before = m_form->day();
    PlannerDay day = before;
    int pasted = 0;
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (!day.isRowEmpty(row) || m_copied->isRowEmpty(row))
            continue;
        day.times[row] = m_copied->times[row];
        day.texts[row] = m_copied->texts[row];
        ++pasted;
    }
    m_form->setDay(day);
    refreshModified();
    emit said(PlannerLines::pasted(pasted));
    if (pasted > 0)
        noteExchange(PlannerLines::pastedInto(dayText()), before);
}

QString DayEditor::dayText() const
{
    return Dates::statusText(m_date, m_program.state.dateStyle);
}

void DayEditor::noteExchange(const QString &title, const PlannerDay &before)
{
    const PlannerDay now = m_form->day();
    emit exchanged({title, [=, this] { return exchange(now, before); },
                    [=, this] { return exchange(before, now); }, UndoStep::Typed});
}

ChangeResult DayEditor::exchange(const PlannerDay &shown, const PlannerDay &wanted)
{
    if (m_form->day() != shown)
        return ChangeResult::Outdated;
    m_form->setDay(wanted);
    refreshModified();
    return ChangeResult::Done;
}

void DayEditor::askForDate()
{
    const DateStyle style = m_program.state.dateStyle;
    const auto answer = m_program.dialogs.input(window(), u"Go to Date"_s, PlannerMessages::whichDay(),
                                                Dates::boxText(m_date, style));
    if (!answer || answer->trimmed().isEmpty())
        return;
    if (const auto date = Dates::parse(*answer, style))
        emit dateRequested(*date);
    else
        emit said(PlannerLines::noSuchDate(*answer));
}

void DayEditor::refreshModified()
{
    m_unsaved->setText(isModified() ? FrameLines::unsavedChanges() : QString());
    const QList<int> rows = rowsSortedLast();
    m_sortedLast->setText(rows.isEmpty() ? QString() : PlannerLines::sortedLast(rows));
    fitFootWords();
}

/// Where there is no room for both, the rows that stand last come first.
void DayEditor::fitFootWords()
{
    const QString words = m_sortedLast->text();
    const int begin = m_sortedLast->parentWidget()->layout()->itemAt(0)->geometry().right();
    const int room = m_sortedLast->geometry().right() - begin - 24; // without the gaps
    const int wanted = m_unsaved->sizeHint().width() + m_sortedLast->fontMetrics().horizontalAdvance(words);
    m_unsaved->setHidden(!words.isEmpty() && wanted > room);
}

/// Rows with a time typed since the day was loaded, as their place in the file shows the others already.
QList<int> DayEditor::rowsSortedLast() const
{
    QList<int> rows;
    if (placement() != UntimedPlacement::Last)
        return rows;
    const PlannerDay day = m_form->day();
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (UsualTime::hasNoHalf(day.times[row]) && m_times.isTyped(row, day.times[row]))
            rows.append(int(row));
    }
    return rows;
}

void DayEditor::enterRow(int row)
{
    m_scroll->ensureWidgetVisible(m_form->textBox(row), 0, 40);
    emit said(PlannerLines::row(row));
}

void DayEditor::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    fitFootWords();
}
