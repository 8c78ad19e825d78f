#include "planner/window/plannerwindow.h"

#include "planner/model/lines.h"
#include "planner/model/messages.h"
#include "planner/window/comingup.h"
#include "planner/window/dayform.h"
#include "planner/window/plannercalendar.h"
#include "planner/window/recurrencepanel.h"
#include "planner/window/steptitle.h"
#include "planner/window/weekview.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/settingskeys.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QStackedWidget>

using namespace Qt::Literals::StringLiterals;

bool Zcalandar1::isModified() const
{
    return m_form->day() != m_shown;
}

/// What the boxes hold. A text that nobody touched stays as the file has it, even where a box shows it
/// otherwise.
PlannerDay Zcalandar1::typedDay() const
{
    PlannerDay day = m_form->day();
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (day.times[row] == m_shown.times[row])
            day.times[row] = m_loaded.times[row];
        if (day.texts[row] == m_shown.texts[row])
            day.texts[row] = m_loaded.texts[row];
    }
    return day;
}

void Zcalandar1::loadDay(QDate date)
{
    m_loadedDate = date;
    m_loaded = m_files.read(date);
    m_form->setDay(m_loaded);
    m_shown = m_form->day();
    m_caption->setTitle(Dates::longText(date, program().state.dateStyle),
                        Dates::statusText(date, program().state.dateStyle));
    m_calendar->setDate(date);
    m_comingUp->setDate(date);
    refreshModified();
}

void Zcalandar1::refreshModified()
{
    m_unsaved->setText(isModified() ? FrameLines::unsavedChanges() : QString());
}

UntimedPlacement Zcalandar1::placement() const
{
    return UntimedPlacement(m_placement->checkedId());
}

void Zcalandar1::setPlacement(int placement)
{
    if (!program().settings.setNumber(SettingsKeys::plannerPlacement, placement))
        activity().say(FrameLines::settingNotSaved());
}

bool Zcalandar1::mayReplaceDay(const Message &question)
{
    if (!isModified())
        return true;
    if (ask(question) == Answer::Yes)
        return writeDay();
    reloadDay();
    return true;
}

bool Zcalandar1::mayDiscard()
{
    return mayReplaceDay(PlannerMessages::saveBeforeExiting());
}

/// Writes the rows, in time order, into the day that was loaded; whatever is chosen in the calendar by now.
bool Zcalandar1::writeDay()
{
    const PlannerDay ordered = inTimeOrder(typedDay(), placement());
    if (!m_files.write(m_loadedDate, ordered)) {
        activity().say(PlannerLines::notSaved());
        m_calendar->setDate(m_loadedDate);
        return false;
    }
    m_calendar->refreshMarks();
    reloadDay();
    ask(PlannerMessages::daySaved());
    return true;
}

void Zcalandar1::goTo(QDate date)
{
    // Nothing is replaced by the day that is there.
    if (date.isValid() && date == m_loadedDate && isModified()) {
        m_calendar->setDate(date);
        showDayView();
        return;
    }
    if (!date.isValid() || !mayReplaceDay(PlannerMessages::saveBeforeNextAction())) {
        m_calendar->setDate(m_loadedDate);
        return;
    }
    activity().say({});
    loadDay(date);
    showDayView();
}

void Zcalandar1::stepDay(int days)
{
    const QDate date = viewedDate();
    if (m_views->currentWidget() == m_dayView)
        goTo(date.addDays(days));
    else if (m_views->currentWidget() == m_week)
        openWeek(date.addDays(7 * days));
    else
        openMonth(date.addMonths(days));
}

void Zcalandar1::goToToday()
{
    goTo(clock().today());
}

void Zcalandar1::askForDate()
{
    const DateStyle style = program().state.dateStyle;
    const auto answer = program().dialogs.input(this, u"Go to Date"_s, u"Which day do you want to see?"_s,
                                                Dates::boxText(m_loadedDate, style));
    if (!answer || answer->trimmed().isEmpty())
        return;
    if (const auto date = Dates::parse(*answer, style, clock().today()))
        goTo(*date);
    else
        activity().say(PlannerLines::noSuchDate(*answer));
}

void Zcalandar1::saveDay()
{
    if (typedDay().isEmpty() && ask(PlannerMessages::nothingToSave()) == Answer::No)
        return;
    if (writeDay())
        m_form->focusRow(m_form->firstEmptyRow());
}

void Zcalandar1::clearDay()
{
    if (typedDay().isEmpty()) {
        ask(PlannerMessages::nothingToClear());
        return;
    }
    if (ask(PlannerMessages::clearDay(m_caption->title())) != Answer::Yes)
        return;
    m_form->setDay({});
    refreshModified();
    m_form->focusRow(0);
    activity().say(PlannerLines::cleared());
}

void Zcalandar1::copyDay()
{
    const PlannerDay day = typedDay();
    if (day.isEmpty()) {
        ask(PlannerMessages::nothingToCopy());
        return;
    }
    m_copied = day;
    refreshCommands();
    activity().say(PlannerLines::copied(day.entryCount()));
}

void Zcalandar1::pasteDay()
{
    if (!m_copied)
        return;
    PlannerDay day = m_form->day();
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
    activity().say(PlannerLines::pasted(pasted));
}

void Zcalandar1::choosePanelColor()
{
    colors().choosePanelColor();
}

void Zcalandar1::openBackup()
{
    program().functions.open(Function::Backup, program());
}

void Zcalandar1::showHelp()
{
    emit program().changes.helpRequested(HelpContext::Planner);
}

void Zcalandar1::keyPressEvent(QKeyEvent *event)
{
    const bool isOverDay = m_views->currentWidget() != m_dayView;
    if (event->key() != Qt::Key_Escape || isPreviewShown() || !isOverDay)
        FunctionWindow::keyPressEvent(event);
    else if (!m_recurrence->isRunning())
        showDayView();
}

void Zcalandar1::resizeEvent(QResizeEvent *event)
{
    FunctionWindow::resizeEvent(event);
    placeSplitter();
}
