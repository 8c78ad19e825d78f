// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/householdnotes.h"

#include "shell/controls/controls.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QMenu>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QList<HouseholdNote> HouseholdNotes::all(QDate from, QDate to) const
{
    QList<HouseholdNote> notes;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = m_program.functions.entry(face.function);
        if (face.function == Function::Planner || !entry || !entry->dayNotes ||
            face.isGuarded(m_program.state.protectedAreas))
            continue;
        for (const DayNote &note : entry->dayNotes(m_program, from, to))
            notes.append({note, face.function});
    }
    std::ranges::stable_sort(notes, {}, [](const HouseholdNote &note) { return note.note.date; });
    return notes;
}

QStringList HouseholdNotes::passedOver() const
{
    QStringList titles;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = m_program.functions.entry(face.function);
        if (face.function != Function::Planner && entry && entry->dayNotes &&
            face.isGuarded(m_program.state.protectedAreas))
            titles.append(face.titleText());
    }
    return titles;
}

QList<HouseholdNote> HouseholdNotes::occasions(QDate from, QDate to) const
{
    QList<HouseholdNote> notes = all(from, to);
    notes.removeIf([](const HouseholdNote &note) {
        return note.note.kind != NoteKind::Birthday && note.note.kind != NoteKind::Anniversary;
    });
    return notes;
}

PlannerPages::Notes HouseholdNotes::texts(QDate from, QDate to) const
{
    PlannerPages::Notes texts;
    for (const HouseholdNote &note : occasions(from, to))
        texts[note.note.date] << note.note.text;
    return texts;
}

void HouseholdNotes::open(const HouseholdNote &note) const
{
    emit m_program.changes.placeRequested(note.function, note.note.place);
}

void HouseholdNotes::open(const QList<HouseholdNote> &notes, QPoint place, QWidget *owner) const
{
    if (notes.size() == 1)
        open(notes.first());
    if (notes.size() < 2)
        return;
    auto *menu = named(new QMenu(owner), u"noteMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const HouseholdNote &note : notes) {
        const QString caption = QString(note.note.text).replace(u'&', u"&&"_s);
        QObject::connect(menu->addAction(caption), &QAction::triggered, menu, [this, note] { open(note); });
    }
    menu->popup(place);
}

QString HouseholdNotes::joined(const QList<HouseholdNote> &notes)
{
    QStringList texts;
    for (const HouseholdNote &note : notes)
        texts << note.note.text;
    return texts.join(u"; "_s);
}

QString HouseholdNotes::cut(const QList<HouseholdNote> &notes, const QFontMetrics &metrics, int width)
{
    QString all = joined(notes);
    if (notes.isEmpty() || metrics.horizontalAdvance(all) <= width)
        return all;
    const DayNote &first = notes.front().note;
    QString fact = first.text.sliced(first.nameLength);
    if (notes.size() > 1)
        fact += u"; %1 more"_s.arg(notes.size() - 1);
    // In a narrow place both lose something: whose day it is must still be told.
    const int room = std::max(width * 2 / 5, width - metrics.horizontalAdvance(fact));
    const QString name = metrics.elidedText(first.text.first(first.nameLength), Qt::ElideRight, room);
    return metrics.elidedText(name + fact, Qt::ElideRight, width);
}

QLatin1StringView HouseholdNotes::sign(const QList<HouseholdNote> &notes)
{
    const bool isAnniversary = !notes.isEmpty() && notes.first().note.kind == NoteKind::Anniversary;
    return isAnniversary ? "anniversary"_L1 : "cake"_L1;
}
