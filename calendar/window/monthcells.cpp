// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/monthcells.h"

#include "calendar/window/celleditor.h"

#include <QApplication>
#include <QHelpEvent>
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
    : ChosenSheet(parent)
    , m_editor(new CellEditor(viewport()))
{
    setObjectName(u"monthCells"_s);
    setAccessibleName(u"Days of the month"_s);
    setContextMenuPolicy(Qt::CustomContextMenu);
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
        if (areSeveral())
            emit spanWanted();
        else
            emit writingWanted(line(), {});
        return;
    case Qt::Key_Escape:
        if (areSeveral() || line() >= 0) {
            leaveLine();
            setDay(day());
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
            go(day().addDays(by), isChoosing);
        return true;
    }
    case Qt::Key_Up:
    case Qt::Key_Down:
        go(day().addDays(qint64(event.key() == Qt::Key_Up ? -1 : 1) * (isDown ? 1 : daysPerWeek)),
           isChoosing);
        return true;
    case Qt::Key_Home:
    case Qt::Key_End: {
        const QModelIndex index = currentIndex();
        const int column = event.key() == Qt::Key_Home ? 0 : plan().columns - 1;
        if (isDown)
            walkPersons(column - person());
        else if (const int place = days().cellOf(index.siblingAtColumn(column)); place >= 0)
            go(cellAt(place).date, isChoosing);
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
    const int place = plan().find(day, person());
    if (place >= 0 && (isChoosing || !cellAt(place).isOutside)) {
        choose(place, isChoosing);
    } else if (!isChoosing) {
        leaveLine();
        emit dayWanted(day);
    }
}

/// To another column; where there is one alone, to the same day of another month.
void MonthCells::walkPersons(int by)
{
    if (plan().columns == 1)
        go(day().addMonths(std::clamp(by, -1, 1)), false);
    else
        choosePerson(person() + by);
}

bool MonthCells::walkLines(int key)
{
    const QList<int> lines = linesOfDay();
    if (lines.isEmpty())
        return true;
    const bool isUp = key == Qt::Key_Up;
    const qsizetype now = lines.indexOf(line());
    const qsizetype next = now < 0 ? (isUp ? lines.size() - 1 : 0)
                                   : std::clamp<qsizetype>(now + (isUp ? -1 : 1), 0, lines.size() - 1);
    chooseLine(day(), lines[next]);
    return true;
}

// The mouse

void MonthCells::mousePressEvent(QMouseEvent *event)
{
    if (!hasSheet())
        return;
    m_pressed = event->position().toPoint();
    const QPointF point = onSheet(m_pressed);
    const bool isLeft = event->button() == Qt::LeftButton;
    const int place = plan().cellAt(point);
    m_pressedOn = Pressed::Nothing;
    if (const SheetPlan::Listed *listed = plan().listedAt(point)) {
        m_pressedOn = isLeft ? Pressed::Listed : Pressed::Nothing;
        chooseLine(listed->date, listed->line);
    } else if (place >= 0) {
        m_pressedOn = isLeft ? Pressed::Day : Pressed::Nothing;
        m_pressedLine = plan().lineAt(place, point);
        choose(place, isLeft && event->modifiers() & Qt::ShiftModifier);
        if (m_pressedLine >= 0)
            setLine(m_pressedLine);
        emit moved();
    } else if (const QDate small = plan().smallDayAt(point); small.isValid() && isLeft) {
        emit dayWanted(small);
    }
}

/// A line is drawn away; from elsewhere in a day more of them are chosen.
void MonthCells::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint at = event->position().toPoint();
    if (m_pressedOn == Pressed::Nothing ||
        (at - m_pressed).manhattanLength() < QApplication::startDragDistance())
        return;
    if (m_pressedOn == Pressed::Listed || m_pressedLine >= 0) {
        m_pressedOn = Pressed::Nothing;
        startDrag();
    } else if (const int place = plan().cellAt(onSheet(at));
               place >= 0 && (areSeveral() || cellAt(place).date != day())) {
        choose(place, true);
    }
}

void MonthCells::mouseReleaseEvent(QMouseEvent *event)
{
    const bool isOnDay = std::exchange(m_pressedOn, Pressed::Nothing) == Pressed::Day;
    if (!isOnDay || event->button() != Qt::LeftButton || areSeveral())
        return;
    const int place = cell();
    if (const int span = plan().spanAt(onSheet(event->position().toPoint())); span >= 0)
        emit spanOpened(span);
    else if (place >= 0 && cellAt(place).isOutside)
        emit dayWanted(day());
    else if (place >= 0)
        emit writingWanted(m_pressedLine, {});
}

/// The first click has opened the day already; in the list at the foot it has chosen a line.
void MonthCells::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
    if (std::exchange(m_pressedOn, Pressed::Nothing) == Pressed::Listed)
        emit writingWanted(line(), {});
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
    drag(day(), line());
}

bool MonthCells::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !hasSheet())
        return ChosenSheet::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QPointF point = onSheet(help->pos());
    const int place = plan().cellAt(point);
    const int line = place < 0 ? -1 : plan().lineAt(place, point);
    if (const SheetPlan::Listed *listed = plan().listedAt(point))
        QToolTip::showText(help->globalPos(), lineWords(listed->date, listed->line), this);
    else if (line >= 0)
        QToolTip::showText(help->globalPos(), lineWords(cellAt(place).date, line), this);
    else
        QToolTip::hideText();
    return true;
}

void MonthCells::focusInEvent(QFocusEvent *event)
{
    ChosenSheet::focusInEvent(event);
    viewport()->update();
}

void MonthCells::focusOutEvent(QFocusEvent *event)
{
    ChosenSheet::focusOutEvent(event);
    viewport()->update();
}

// Typing

void MonthCells::openEditor(const QStringList &lines, int line)
{
    const int place = cell();
    if (place < 0)
        return;
    leaveOthers();
    m_editor->open(onScreen(cellAt(place).content), lines, line);
}

void MonthCells::placeOver()
{
    if (const int place = cell(); place >= 0 && m_editor->isOpen())
        m_editor->setPlace(onScreen(cellAt(place).content));
}

bool MonthCells::isActive() const
{
    return hasFocus() || m_editor->hasFocus();
}
