// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/celltyping.h"

#include "calendar/model/calendaredits.h"
#include "calendar/window/celleditor.h"
#include "calendar/window/monthcells.h"
#include "calendar/window/monthpage.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/windowlines.h"

#include <QScopedValueRollback>

#include <utility>

using namespace Qt::Literals::StringLiterals;

CellTyping::CellTyping(const CalendarDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
{
    const MonthCells &cells = m_desk.page.cells();
    connect(&cells, &MonthCells::writingWanted, this, &CellTyping::open);
    connect(&cells.editor(), &CellEditor::edited, this, &CellTyping::draft);
    connect(&cells.editor(), &CellEditor::left, this, &CellTyping::leave);
    connect(&cells.editor(), &CellEditor::said, this, &CellTyping::said);
    connect(&m_desk.calendars, &OpenCalendars::changed, this, &CellTyping::giveWay);
}

void CellTyping::open(int line, const QString &typed)
{
    MonthCells &cells = m_desk.page.cells();
    finish();
    if (const QString why = m_desk.calendars.whyLocked(); !why.isEmpty()) {
        emit said(why);
        return;
    }
    if (!m_desk.calendars.calendar().has(cells.day())) {
        emit said(CalendarWindowLines::notThisDate());
        return;
    }
    emit said({}); // of what was done before
    m_before = m_desk.calendars.calendar();
    m_date = cells.day();
    m_person = cells.person();
    m_ownLines = cells.linesOfDay();
    const QList<DayLine> lines = m_before.days.value(m_date);
    QStringList texts;
    for (const int own : std::as_const(m_ownLines))
        texts.append(lines.value(own).shown);
    cells.openEditor(texts, int(m_ownLines.indexOf(line)));
    if (!typed.isEmpty())
        cells.editor().insertPlainText(typed);
    emit changed();
}

/// A line that is typed into the column of a person is his.
QString CellTyping::named(const QString &text) const
{
    const QString person = m_person > 0 ? m_before.look.layout == CalendarLayout::Columns
                                              ? m_before.persons.value(m_person - 1)
                                              : QString()
                                        : QString();
    if (person.isEmpty() || text.trimmed().isEmpty() || text.contains(person, Qt::CaseInsensitive))
        return text;
    return person + u": "_s + text.trimmed();
}

/// All lines of the day: those of the opened cell as they are typed, where the first of them stood, and those
/// of the other cells of the day as they are.
QStringList CellTyping::textsOfDay() const
{
    QStringList typed;
    for (const QString &line : m_desk.page.cells().editor().lines())
        typed.append(named(line));
    const QList<DayLine> lines = m_before.days.value(m_date);
    QStringList texts;
    bool isPlaced = false;
    for (const int line : CalendarEdits::visibleLines(m_before, m_date)) {
        if (!m_ownLines.contains(line)) {
            texts.append(lines[line].shown);
        } else if (!std::exchange(isPlaced, true)) {
            texts += typed;
        }
    }
    return isPlaced ? texts : texts + typed;
}

void CellTyping::draft()
{
    const QScopedValueRollback<bool> drafting(m_isDrafting, true);
    if (isOpen() && m_desk.calendars.current())
        m_desk.calendars.current()->draft(CalendarEdits::setCell(m_before, m_date, textsOfDay()));
}

/// Something else has changed the calendar: a step was taken back, say. What the editor has is of before.
void CellTyping::giveWay()
{
    if (!isOpen() || m_isDrafting)
        return;
    m_date = {};
    m_desk.page.cells().editor().close();
    m_desk.page.cells().setFocus();
    emit changed();
}

void CellTyping::finish()
{
    if (!isOpen())
        return;
    MonthCells &cells = m_desk.page.cells();
    const int current = cells.editor().currentLine();
    const QStringList typed = cells.editor().lines();
    const QString text = named(typed.value(current)).trimmed();
    const QDate date = std::exchange(m_date, {});
    cells.editor().close();
    if (OpenCalendar *calendar = m_desk.calendars.current())
        calendar->endDraft(CalendarWindowLines::wroteOn(date));
    if (m_desk.calendars.calendar() != m_before)
        emit done(CalendarWindowLines::wroteOn(date));
    const QList<DayLine> lines = m_desk.calendars.calendar().days.value(date);
    for (int line = 0; line < lines.size() && !text.isEmpty(); ++line) {
        if (lines[line].shown == text)
            cells.setLine(line);
    }
    emit changed();
}

void CellTyping::leave(bool byKey)
{
    finish();
    if (byKey)
        m_desk.page.cells().setFocus();
}
