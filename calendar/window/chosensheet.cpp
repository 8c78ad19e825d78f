// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/chosensheet.h"

#include "shell/look/theme.h"

#include <QPainter>

#include <algorithm>
#include <utility>

ChosenSheet::ChosenSheet(QWidget *parent)
    : DropSheet(parent)
{}

void ChosenSheet::show(std::shared_ptr<const CalendarSheet> sheet, DaysOfSheet::Words words,
                       DaysOfSheet::Words lineWords)
{
    m_lineWords = std::move(lineWords);
    if (setSheet(std::move(sheet), std::move(words)))
        m_anchor = {};
    m_person = plan().isByPerson ? std::clamp(m_person, 0, std::max(0, plan().columns - 1)) : 0;
    follow();
    placeOver();
}

void ChosenSheet::setDay(QDate day)
{
    if (m_day != day)
        m_line = -1;
    m_day = day;
    m_anchor = {};
    follow();
}

void ChosenSheet::setLine(int line)
{
    m_line = line;
    bringChosen();
    viewport()->update();
}

QList<int> ChosenSheet::linesOfDay() const
{
    const int place = cell();
    return place < 0 ? QList<int>() : cellAt(place).all;
}

void ChosenSheet::choose(int cell, bool isChoosing)
{
    const SheetPlan::Cell &chosen = cellAt(cell);
    if (!isChoosing)
        m_anchor = {};
    else if (!m_anchor.isValid())
        m_anchor = m_day;
    if (chosen.date != m_day)
        leaveLine();
    m_day = chosen.date;
    m_person = chosen.person;
    follow();
    emit moved();
}

void ChosenSheet::chooseLine(QDate day, int line)
{
    m_anchor = {};
    m_day = day;
    m_person = plan().personOf(day, line);
    m_line = line;
    follow();
    currentChanged(currentIndex(), {}); // read aloud anew
    emit said(m_lineWords(m_day, m_line));
    emit moved();
}

void ChosenSheet::choosePerson(int person)
{
    m_person = std::clamp(person, 0, plan().columns - 1);
    leaveLine();
    follow();
    emit moved();
}

void ChosenSheet::leaveLine()
{
    if (std::exchange(m_line, -1) >= 0)
        emit said({});
}

/// The current index and what is chosen are those of the day.
void ChosenSheet::follow()
{
    const QList<int> lines = linesOfDay();
    if (!lines.contains(m_line))
        m_line = -1;
    const QModelIndex index = days().indexOf(cell());
    if (index.isValid() && index != currentIndex())
        setCurrentIndex(index);
    QItemSelection chosenDays;
    for (QDate day = firstChosen(); m_anchor.isValid() && day <= lastChosen(); day = day.addDays(1)) {
        const QModelIndex chosen = days().indexOf(plan().find(day, m_person));
        if (chosen.isValid())
            chosenDays.select(chosen, chosen);
    }
    if (!chosenDays.isEmpty())
        selectionModel()->select(chosenDays, QItemSelectionModel::ClearAndSelect);
    bringChosen();
    viewport()->update();
}

/// A line that stands in the list at the foot is to be seen there.
void ChosenSheet::bringChosen()
{
    scrollTo(days().indexOf(cell()));
    if (const QRectF listed = plan().listedPlace(m_day, m_line); !listed.isEmpty())
        bring(listed);
}

/// The day that is the one, those chosen with it, and its line.
void ChosenSheet::paintMarks(QPainter &painter) const
{
    const Theme &theme = Theme::light();
    for (const SheetPlan::Cell &each : plan().cells) {
        if (m_anchor.isValid() && each.date >= firstChosen() && each.date <= lastChosen())
            layOver(painter, onScreen(each.place), theme.soft);
    }
    if (const int place = cell(); place >= 0) {
        const SheetPlan::Cell &now = cellAt(place);
        if (!m_anchor.isValid())
            layOver(painter, onScreen(now.place), theme.mark);
        for (const SheetPlan::Line &line : now.lines) {
            if (line.line == m_line)
                layOver(painter, onScreen(line.place), theme.soft);
        }
        drawRim(painter, onScreen(now.place), isActive() ? 2 : 1);
    }
    if (const QRectF listed = plan().listedPlace(m_day, m_line); !listed.isEmpty()) {
        layOver(painter, onScreen(listed), theme.mark);
        drawRim(painter, onScreen(listed.adjusted(-2, -1, 2, 1)), 1);
    }
    DropSheet::paintMarks(painter);
}
