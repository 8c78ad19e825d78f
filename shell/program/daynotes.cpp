// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/daynotes.h"

#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QList<HouseholdNote> DayNotes::all(const Program &program, Function asker, QDate from, QDate to)
{
    QList<HouseholdNote> notes;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = program.functions.entry(face.function);
        if (face.function == asker || !entry || !entry->dayNotes ||
            face.isGuarded(program.state.protectedAreas))
            continue;
        for (const DayNote &note : entry->dayNotes(program, from, to))
            notes.append({note, face.function});
    }
    std::ranges::stable_sort(notes, {}, [](const HouseholdNote &note) { return note.note.date; });
    return notes;
}

QLatin1StringView DayNotes::signOf(const DayNote &note, Function function)
{
    switch (note.kind) {
    case NoteKind::Birthday:
        return "cake"_L1;
    case NoteKind::Anniversary:
        return "anniversary"_L1;
    case NoteKind::Overdue:
        return "overdue"_L1;
    case NoteKind::Due:
        return "due"_L1;
    default:
        return QLatin1StringView(FunctionFaces::of(function).icon);
    }
}

QStringList DayNotes::passedOver(const Program &program, Function asker)
{
    QStringList titles;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = program.functions.entry(face.function);
        if (face.function != asker && entry && entry->dayNotes &&
            face.isGuarded(program.state.protectedAreas))
            titles.append(face.titleText());
    }
    return titles;
}

void DayNotes::open(const Program &program, const HouseholdNote &note)
{
    emit program.changes.placeRequested(note.function, note.note.place);
}
