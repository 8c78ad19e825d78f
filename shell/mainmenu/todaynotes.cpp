// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/todaynotes.h"

#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QMultiHash>

#include <algorithm>

namespace {

constexpr int millisecondsOfDay = 24 * 60 * 60 * 1000;

/// Where a note stands in its day.
int momentOf(const DayNote &note)
{
    if (note.time.isValid())
        return note.time.msecsSinceStartOfDay();
    switch (note.kind) {
    case NoteKind::Appointment:
    case NoteKind::ToDo:
    case NoteKind::Done:
        return millisecondsOfDay;
    default:
        return -1;
    }
}

} // namespace

bool TodayNotes::refresh()
{
    m_today = m_program.clock.today();
    bool isNew = false;
    for (const FunctionFace &face : FunctionFaces::cards())
        if (const FunctionEntry *entry = m_program.functions.entry(face.function); entry && entry->dayNotes)
            isNew = read(face, *entry) || isNew;
    isNew = isNew || std::ranges::any_of(
                         m_notes, [this](const Note &note) { return note.isOver != isOver(note.note); });
    if (isNew)
        gather();
    return isNew;
}

bool TodayNotes::isOver(const DayNote &note) const
{
    const QTime now = m_program.clock.now().time();
    return note.date == m_today && note.timeText.isEmpty() && note.time.isValid() &&
           note.time < QTime(now.hour(), now.minute());
}

bool TodayNotes::read(const FunctionFace &face, const FunctionEntry &entry)
{
    const Reading reading{entry.liveStamp(m_program), m_today, m_program.state.dateStyle,
                          face.isGuarded(m_program.state.protectedAreas)};
    const auto known = m_known.find(face.function);
    if (known != m_known.end() && known->second.reading == reading)
        return false;
    QList<DayNote> notes;
    if (!reading.isGuarded)
        notes = entry.dayNotes(m_program, m_today, m_today.addDays(daysAhead));
    m_known[face.function] = {reading, notes};
    return true;
}

void TodayNotes::gather()
{
    m_notes.clear();
    m_isWhole = true;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const auto known = m_known.find(face.function);
        if (known == m_known.end())
            continue;
        m_isWhole = m_isWhole && !known->second.reading.isGuarded;
        for (const DayNote &note : known->second.notes)
            m_notes.append({note, face.function, isOver(note)});
    }
    leaveOutWhatIsSaidTwice();
    std::ranges::stable_sort(m_notes, [](const Note &one, const Note &other) {
        return std::pair(one.note.date, momentOf(one.note)) <
               std::pair(other.note.date, momentOf(other.note));
    });
}

/// What was taken over into the planner stands there as an appointment.
void TodayNotes::leaveOutWhatIsSaidTwice()
{
    QMultiHash<QDate, QString> appointments;
    for (const Note &note : m_notes) {
        if (note.note.kind == NoteKind::Appointment)
            appointments.insert(note.note.date, note.note.text);
    }
    m_notes.removeIf([&](const Note &note) {
        const QStringList texts =
            note.note.kind == NoteKind::ToDo ? appointments.values(note.note.date) : QStringList();
        return std::ranges::any_of(texts, [&](const QString &text) { return note.note.isSaidBy(text); });
    });
}
