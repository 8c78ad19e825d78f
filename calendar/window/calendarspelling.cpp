// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/calendarspelling.h"

#include "calendar/model/calendaredits.h"
#include "calendar/window/celleditor.h"
#include "calendar/window/celltyping.h"
#include "calendar/window/monthcells.h"
#include "calendar/window/monthpage.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/windowlines.h"
#include "shell/frame/windowwriting.h"
#include "shell/writing/writing.h"

#include <algorithm>

CalendarSpelling::CalendarSpelling(const CalendarDesk &desk, CellTyping &typing, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_typing(typing)
    , m_tools(new WindowWriting(
          {desk.window, desk.commands, desk.views, desk.writing},
          {[this] { return texts(); }, [this](const WalkedText &text) { change(text); }}, this))
{
    m_desk.writing.check(&m_desk.page.cells().editor());
    connect(m_tools, &WindowWriting::said, this, &CalendarSpelling::said);
}

void CalendarSpelling::addCommands(QMenu *menu)
{
    m_tools->addCommands(
        menu, [this] { return m_desk.calendars.current() ? QString() : CalendarWindowLines::noCalendar(); });
}

/// From the month that is shown on, and round. What came in as it is was checked where it was written.
std::vector<WalkedText> CalendarSpelling::texts()
{
    m_typing.finish();
    std::vector<WalkedText> texts;
    m_places.clear();
    const WallCalendar &calendar = m_desk.calendars.calendar();
    for (auto day = calendar.days.cbegin(); day != calendar.days.cend(); ++day) {
        for (int line = 0; line < day->size(); ++line) {
            if (const DayLine &each = day->at(line);
                !each.isRemoved() && (each.isTyped() || each.isEdited())) {
                m_places.push_back({day.key(), line});
                texts.push_back(
                    {int(m_places.size()) - 1, CalendarWindowLines::spokenDate(day.key()), each.shown});
            }
        }
    }
    const QDate month = m_desk.page.month();
    const auto first = std::ranges::find_if(
        texts, [&](const WalkedText &text) { return m_places[std::size_t(text.id)].date >= month; });
    if (first != texts.end())
        std::rotate(texts.begin(), first, texts.end());
    return texts;
}

void CalendarSpelling::change(const WalkedText &text)
{
    if (text.id < 0 || text.id >= int(m_places.size()))
        return;
    const Place place = m_places[std::size_t(text.id)];
    const QList<DayLine> lines = m_desk.calendars.calendar().days.value(place.date);
    QStringList texts;
    for (int line = 0; line < lines.size(); ++line) {
        if (!lines[line].isRemoved())
            texts.append(line == place.line ? text.text : lines[line].shown);
    }
    m_desk.calendars.change(CalendarWindowLines::wroteOn(place.date),
                            CalendarEdits::setCell(m_desk.calendars.calendar(), place.date, texts));
}
