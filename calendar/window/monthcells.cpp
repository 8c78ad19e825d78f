// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/monthcells.h"

#include "calendar/window/celleditor.h"
#include "shell/look/theme.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;

bool isText(const QKeyEvent &event)
{
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace

MonthCells::MonthCells(QWidget *parent)
    : DropSheet(parent)
    , m_editor(new CellEditor(viewport()))
{
    setObjectName(u"monthCells"_s);
    setAccessibleName(u"Days of the month"_s);
    setContextMenuPolicy(Qt::CustomContextMenu);
}

void MonthCells::show(std::shared_ptr<const CalendarSheet> sheet, DaysOfSheet::Words words,
                      DaysOfSheet::Words lineWords)
{
    m_lineWords = std::move(lineWords);
    if (setSheet(std::move(sheet), std::move(words)))
        m_anchor = {};
    m_person = plan().isByPerson ? std::clamp(m_person, 0, std::max(0, plan().columns - 1)) : 0;
    follow();
    placeOver();
}

void MonthCells::setDay(QDate day)
{
    if (m_day != day)
        m_line = -1;
    m_day = day;
    m_anchor = {};
    follow();
}

void MonthCells::setLine(int line)
{
    m_line = line;
    viewport()->update();
}

/// The current index and what is chosen are those of the day.
void MonthCells::follow()
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
    if (index.isValid())
        scrollTo(index);
    viewport()->update();
}

QList<int> MonthCells::linesOfDay() const
{
    const int place = cell();
    return place < 0 ? QList<int>() : plan().cells[std::size_t(place)].all;
}

// Keys

void MonthCells::keyPressEvent(QKeyEvent *event)
{
    if (!hasSheet() || walk(*event))
        return;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        if (m_anchor.isValid())
            emit spanWanted();
        else
            emit writingWanted(m_line, {});
        return;
    case Qt::Key_Escape:
        if (m_anchor.isValid() || m_line >= 0) {
            m_line = -1;
            setDay(m_day);
            emit moved();
            return;
        }
        event->ignore();
        return;
    default:
        break;
    }
    if (isText(*event))
        emit writingWanted(-1, event->text());
    else
        event->ignore();
}

bool MonthCells::walk(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers with = event.modifiers() & ~Qt::KeypadModifier;
    const bool isChoosing = with == (Qt::ControlModifier | Qt::ShiftModifier) || with == Qt::ShiftModifier;
    const bool isUpOrDown = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    if (with == Qt::AltModifier && isUpOrDown) {
        emit orderWanted(event.key() == Qt::Key_Up ? -1 : 1);
        return true;
    }
    if (with == Qt::ControlModifier && isUpOrDown)
        return walkLines(event.key());
    if (with != Qt::NoModifier && !isChoosing)
        return false;
    const bool isDown = plan().isByPerson;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const int by = event.key() == Qt::Key_Left ? -1 : 1;
        if (isDown)
            walkPersons(by);
        else
            go(m_day.addDays(by), isChoosing);
        return true;
    }
    case Qt::Key_Up:
    case Qt::Key_Down:
        go(m_day.addDays(qint64(event.key() == Qt::Key_Up ? -1 : 1) * (isDown ? 1 : daysPerWeek)),
           isChoosing);
        return true;
    case Qt::Key_Home:
    case Qt::Key_End: {
        const QModelIndex index = currentIndex();
        const int column = event.key() == Qt::Key_Home ? 0 : plan().columns - 1;
        if (isDown)
            walkPersons(column - m_person);
        else if (const int place = days().cellOf(index.siblingAtColumn(column)); place >= 0)
            go(plan().cells[std::size_t(place)].date, isChoosing);
        return true;
    }
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        emit monthStepped(event.key() == Qt::Key_PageUp ? -1 : 1);
        return true;
    default:
        return false;
    }
}

/// Days are chosen together as far as the sheet shows them; one alone is shown in its own month.
void MonthCells::go(QDate day, bool isChoosing)
{
    const int place = plan().find(day, m_person);
    if (isChoosing ? place >= 0 : place >= 0 && !plan().cells[std::size_t(place)].isOutside)
        choose(place, isChoosing);
    else if (!isChoosing)
        emit dayWanted(day);
}

void MonthCells::choose(int cell, bool isChoosing)
{
    const SheetPlan::Cell &chosen = plan().cells[std::size_t(cell)];
    if (!isChoosing)
        m_anchor = {};
    else if (!m_anchor.isValid())
        m_anchor = m_day;
    if (chosen.date != m_day)
        m_line = -1;
    m_day = chosen.date;
    m_person = chosen.person;
    follow();
    emit moved();
}

/// To another column; where there is one alone, to the same day of another month.
void MonthCells::walkPersons(int by)
{
    if (plan().columns == 1) {
        go(m_day.addMonths(std::clamp(by, -1, 1)), false);
        return;
    }
    m_person = std::clamp(m_person + by, 0, plan().columns - 1);
    m_line = -1;
    follow();
    emit moved();
}

bool MonthCells::walkLines(int key)
{
    const QList<int> lines = linesOfDay();
    if (lines.isEmpty())
        return true;
    const qsizetype now = lines.indexOf(m_line);
    if (now < 0)
        m_line = key == Qt::Key_Up ? lines.last() : lines.first();
    else
        m_line = lines[std::clamp<qsizetype>(now + (key == Qt::Key_Up ? -1 : 1), 0, lines.size() - 1)];
    currentChanged(currentIndex(), {}); // read aloud anew
    viewport()->update();
    emit said(m_lineWords(m_day, m_line));
    emit moved();
    return true;
}

// The mouse

void MonthCells::mousePressEvent(QMouseEvent *event)
{
    if (!hasSheet())
        return;
    const QPointF point = onSheet(event->position().toPoint());
    const int place = plan().cellAt(point);
    if (place < 0)
        return;
    const bool isLeft = event->button() == Qt::LeftButton;
    m_isPressed = isLeft;
    m_pressed = event->position().toPoint();
    m_pressedLine = plan().lineAt(place, point);
    choose(place, isLeft && event->modifiers() & Qt::ShiftModifier);
    if (m_pressedLine >= 0)
        setLine(m_pressedLine);
    emit moved();
}

void MonthCells::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint at = event->position().toPoint();
    if (!m_isPressed || (at - m_pressed).manhattanLength() < QApplication::startDragDistance())
        return;
    if (m_pressedLine >= 0) {
        m_isPressed = false;
        startDrag();
    } else if (const int place = plan().cellAt(onSheet(at));
               place >= 0 && (m_anchor.isValid() || plan().cells[std::size_t(place)].date != m_day)) {
        choose(place, true);
    }
}

void MonthCells::mouseReleaseEvent(QMouseEvent *event)
{
    if (!std::exchange(m_isPressed, false) || event->button() != Qt::LeftButton || m_anchor.isValid())
        return;
    const QPointF point = onSheet(event->position().toPoint());
    const int place = cell();
    if (const int span = plan().spanAt(point); span >= 0)
        emit spanOpened(span);
    else if (place >= 0 && plan().cells[std::size_t(place)].isOutside)
        emit dayWanted(m_day);
    else if (place >= 0)
        emit writingWanted(m_pressedLine, {});
}

/// The first click has opened the day already.
void MonthCells::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

/// The sheet scrolls where it is larger than its view, and else turns.
void MonthCells::wheelEvent(QWheelEvent *event)
{
    if (verticalScrollBar()->maximum() > 0)
        QAbstractScrollArea::wheelEvent(event);
    else if (!m_editor->isOpen()) {
        m_wheel += event->angleDelta().y();
        const int notches = m_wheel / QWheelEvent::DefaultDeltasPerStep;
        m_wheel %= QWheelEvent::DefaultDeltasPerStep;
        if (notches != 0)
            emit monthStepped(-notches);
    }
}

void MonthCells::startDrag()
{
    if (!m_whyLocked.isEmpty()) {
        emit said(m_whyLocked);
        return;
    }
    drag(m_day, m_line);
}

bool MonthCells::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !hasSheet())
        return DropSheet::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int place = plan().cellAt(onSheet(help->pos()));
    const int line = place < 0 ? -1 : plan().lineAt(place, onSheet(help->pos()));
    if (line >= 0)
        QToolTip::showText(help->globalPos(), m_lineWords(plan().cells[std::size_t(place)].date, line), this);
    else
        QToolTip::hideText();
    return true;
}

void MonthCells::focusInEvent(QFocusEvent *event)
{
    DropSheet::focusInEvent(event);
    viewport()->update();
}

void MonthCells::focusOutEvent(QFocusEvent *event)
{
    DropSheet::focusOutEvent(event);
    viewport()->update();
}

// Typing

void MonthCells::openEditor(const QStringList &lines, int line)
{
    const int place = cell();
    if (place < 0)
        return;
    m_anchor = {};
    m_editor->open(onScreen(plan().cells[std::size_t(place)].content), lines, line);
}

void MonthCells::placeOver()
{
    if (const int place = cell(); place >= 0 && m_editor->isOpen())
        m_editor->setPlace(onScreen(plan().cells[std::size_t(place)].content));
}

// Painting

/// The day that is the one, those chosen with it, and its line.
void MonthCells::paintMarks(QPainter &painter) const
{
    const Theme &theme = Theme::light();
    if (m_anchor.isValid()) {
        for (const SheetPlan::Cell &each : plan().cells) {
            if (each.date >= firstChosen() && each.date <= lastChosen())
                layOver(painter, onScreen(each.place), theme.soft);
        }
    }
    if (const int place = cell(); place >= 0) {
        const SheetPlan::Cell &now = plan().cells[std::size_t(place)];
        if (!m_anchor.isValid())
            layOver(painter, onScreen(now.place), theme.mark);
        for (const SheetPlan::Line &line : now.lines) {
            if (line.line == m_line)
                layOver(painter, onScreen(line.place), theme.soft);
        }
        drawRim(painter, onScreen(now.place), hasFocus() || m_editor->hasFocus() ? 2 : 1);
    }
    DropSheet::paintMarks(painter);
}
