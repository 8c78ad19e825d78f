// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/opencalendars.h"

#include "calendar/model/calendartrash.h"
#include "calendar/window/windowlines.h"
#include "shell/program/program.h"

#include <algorithm>
#include <utility>

OpenCalendars::OpenCalendars(const Program &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
{}

void OpenCalendars::refresh()
{
    m_heads = CalendarFiles::heads(m_program.folder);
    m_heads.removeIf([this](const CalendarHead &head) { return m_removed.contains(head.number); });
    for (CalendarHead &head : m_heads) {
        const auto open = m_opened.find(head.number);
        if (open == m_opened.end() || !head.isCalendar())
            continue;
        const WallCalendar &calendar = open->second->calendar(); // which the file may not have yet
        head.title = calendar.title.isEmpty() ? CalendarFiles::name(head.number) : calendar.title;
        if (head.from.isValid() || !open->second->isSaved()) // else it is shown from some month on
            head.from = calendar.from;
        head.months = calendar.months;
        head.layout = calendar.look.layout;
    }
    // What cannot be read stands last.
    std::ranges::stable_sort(
        m_heads, {}, [](const CalendarHead &head) { return std::pair(!head.from.isValid(), head.from); });
    emit listChanged();
}

bool OpenCalendars::isListStale() const
{
    const auto head = std::ranges::find(m_heads, number(), &CalendarHead::number);
    const bool isDated = head != m_heads.end() && (head->from.isValid() || !m_current->isSaved());
    return head != m_heads.end() &&
           (head->title != calendar().title || (isDated && head->from != calendar().from) ||
            head->months != calendar().months);
}

const CalendarHead *OpenCalendars::head() const
{
    const auto found = std::ranges::find(m_heads, number(), &CalendarHead::number);
    return found == m_heads.end() ? nullptr : &*found;
}

const WallCalendar &OpenCalendars::calendar() const
{
    static const WallCalendar none;
    return m_current ? m_current->calendar() : none;
}

QString OpenCalendars::whyLocked() const
{
    if (!m_whyHeld.isEmpty())
        return m_whyHeld;
    return m_current ? m_current->whyLocked() : CalendarWindowLines::noCalendar();
}

bool OpenCalendars::change(const QString &title, const WallCalendar &after)
{
    return m_current && m_current->change(title, after);
}

OpenCalendar *OpenCalendars::opened(int number)
{
    if (const auto found = m_opened.find(number); found != m_opened.end())
        return found->second;
    auto *calendar = new OpenCalendar(m_program.folder, m_program.clock, number, this);
    m_opened[number] = calendar;
    calendar->load();
    connect(calendar, &OpenCalendar::changed, this, [this, calendar] {
        if (calendar == m_current)
            emit changed();
    });
    connect(calendar, &OpenCalendar::edited, this, [this, number](const UndoStep &step) {
        // What is taken back is to be seen.
        const auto shown = [this, number](const std::function<ChangeResult()> &way) {
            return [this, number, way] {
                show(number);
                return way();
            };
        };
        emit edited({step.title, shown(step.undo), shown(step.redo), step.kind});
    });
    connect(calendar, &OpenCalendar::fileTouched, this, &OpenCalendars::fileTouched);
    connect(calendar, &OpenCalendar::said, this, &OpenCalendars::said);
    connect(calendar, &OpenCalendar::keptBeside, this, &OpenCalendars::refresh);
    return calendar;
}

void OpenCalendars::show(int number)
{
    OpenCalendar *calendar = number > 0 ? opened(number) : nullptr;
    if (calendar == m_current)
        return;
    m_current = calendar;
    emit shown();
}

int OpenCalendars::nearest(QDate today) const
{
    const CalendarHead *next = nullptr;
    for (const CalendarHead &head : m_heads) { // by their first months
        if (head.from.isValid() && today >= head.from && today <= head.lastDay())
            return head.number;
        if (head.from.isValid() && (!next || next->from <= today))
            next = &head; // the last one where none comes
    }
    if (next)
        return next->number;
    return m_heads.isEmpty() ? 0 : m_heads.first().number;
}

bool OpenCalendars::make(const WallCalendar &calendar, const QString &title)
{
    const int number = CalendarFiles::create(m_program.folder, calendar);
    if (number == 0) {
        const bool isFull = CalendarFiles::freeNumber(m_program.folder) == 0;
        emit said(isFull ? CalendarWindowLines::tooMany() : CalendarWindowLines::notMade());
        return false;
    }
    // What is left of a file that is gone must not be written into this one.
    if (const auto gone = m_opened.find(number); gone != m_opened.end()) {
        m_current = m_current == gone->second ? nullptr : m_current;
        gone->second->load();
    }
    m_removed.remove(number);
    emit fileTouched();
    refresh();
    show(number);
    const auto way = [this, number](bool isRemoved) {
        return [this, number, isRemoved] {
            setRemoved(number, isRemoved);
            return ChangeResult::Done;
        };
    };
    emit edited({title, way(true), way(false), UndoStep::Typed});
    return true;
}

void OpenCalendars::remove(int number, const QString &title)
{
    const auto way = [this, number](bool isRemoved) {
        return [this, number, isRemoved] {
            setRemoved(number, isRemoved);
            return ChangeResult::Done;
        };
    };
    setRemoved(number, true);
    emit edited({title, way(false), way(true), UndoStep::Typed});
}

bool OpenCalendars::bringBack(const Trash::Item &item)
{
    const int number = CalendarTrash::bringBack(m_program.folder, item);
    if (number == 0) {
        emit said(CalendarWindowLines::notMade());
        return false;
    }
    emit fileTouched();
    refresh();
    show(number);
    return true;
}

void OpenCalendars::setRemoved(int number, bool isRemoved)
{
    if (isRemoved)
        m_removed.insert(number);
    else
        m_removed.remove(number);
    refresh();
    if (!isRemoved)
        show(number);
    else if (this->number() == number)
        show(nearest(m_program.clock.today()));
}

bool OpenCalendars::reread()
{
    bool isWhole = true;
    for (const auto &[number, calendar] : m_opened) {
        if (calendar->isSaved())
            calendar->load();
        else
            isWhole = false;
    }
    refresh();
    const bool isThere =
        std::ranges::any_of(m_heads, [this](const CalendarHead &head) { return head.number == number(); });
    if (!isThere)
        show(nearest(m_program.clock.today()));
    return isWhole;
}

bool OpenCalendars::isSaved() const
{
    return std::ranges::all_of(m_opened, [this](const auto &open) {
        return m_removed.contains(open.first) || open.second->isSaved();
    });
}

bool OpenCalendars::save()
{
    bool isSaved = true;
    for (const auto &[number, calendar] : m_opened)
        isSaved = (m_removed.contains(number) || calendar->save()) && isSaved;
    return isSaved;
}

bool OpenCalendars::throwAway()
{
    bool areGone = true;
    for (const int number : std::as_const(m_removed)) {
        const auto open = m_opened.find(number);
        const bool isSaved =
            open == m_opened.end() || open->second->save(); // rather kept than half of it lost
        areGone =
            isSaved && CalendarTrash::throwAway(m_program.folder, number, m_program.clock.now()) && areGone;
    }
    m_removed.clear();
    return areGone;
}

QStringList OpenCalendars::fileNames() const
{
    return CalendarFiles::names(m_program.folder);
}
