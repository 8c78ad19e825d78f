// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/householdnotes.h"

#include "shell/controls/controls.h"

#include <QMenu>
#include <QRegularExpression>

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Less and less of a note; of the last text, the `tail` is kept where even that has no room.
struct Narrow {
    QStringList texts;
    qsizetype tail = 0;
};

/// Of a birthday, the age in each text: "Amy W. turns 69; 1 more" to "Amy 69".
Narrow narrowBirthday(const QString &name, const QString &fact, qsizetype others)
{
    const QStringList words = name.split(u' ', Qt::SkipEmptyParts);
    const QString given = words.value(0);
    const QString initials = words.size() > 1 ? given + u' ' + words.last().front() + u'.' : given;
    const QString age = QString(fact).replace(u" turns "_s, u" "_s);
    const QString more = others > 0 ? u"; %1 more"_s.arg(others) : QString();
    const QString plus = others > 0 ? u" +%1"_s.arg(others) : QString();
    return {{initials + fact + more, initials + age + more, given + age + more, initials + age + plus,
             given + age + plus, given + age},
            age.size()};
}

/// Of what is to be paid: its sign says already that it is.
Narrow narrowDue(const QString &item, const QString &amount, qsizetype others)
{
    const QString more = others > 0 ? u"; %1 more"_s.arg(others) : QString();
    const QString plus = others > 0 ? u" +%1"_s.arg(others) : QString();
    return {{item + amount + more, item + amount + plus, item + plus, item}};
}

/// Of what is to be done, "Family van: tires overdue": its sign says that it is due, and it is more than the
/// name that has to be told.
Narrow narrowTask(const QString &name, QString fact, qsizetype others)
{
    static const QRegularExpression state(u" (overdue|due|runs out|ran out)\\b.*$"_s);
    const QString more = others > 0 ? u"; %1 more"_s.arg(others) : QString();
    const QString plus = others > 0 ? u" +%1"_s.arg(others) : QString();
    const QString whole = fact;
    fact.remove(state);
    const QString tail = fact + plus;
    return {{name + whole + more, name + fact + more, name + tail}, tail.size()};
}

/// The first of the texts that has room; else the last with its head cut.
QString fitting(const Narrow &narrow, const QFontMetrics &metrics, int width)
{
    const auto fits = [&](const QString &text) { return metrics.horizontalAdvance(text) <= width; };
    if (const auto found = std::ranges::find_if(narrow.texts, fits); found != narrow.texts.end())
        return *found;
    const QString head = narrow.texts.last().chopped(narrow.tail);
    const QString tail = narrow.texts.last().last(narrow.tail);
    return metrics.elidedText(head, Qt::ElideRight, std::max(0, width - metrics.horizontalAdvance(tail))) +
           tail;
}

bool isOccasion(const HouseholdNote &note)
{
    return note.note.kind == NoteKind::Birthday || note.note.kind == NoteKind::Anniversary;
}

bool isToBePaid(const DayNote &note)
{
    return note.kind == NoteKind::Due || note.kind == NoteKind::Overdue;
}

} // namespace

QList<HouseholdNote> HouseholdNotes::all(QDate from, QDate to) const
{
    return DayNotes::all(m_program, Function::Planner, from, to);
}

QStringList HouseholdNotes::passedOver() const
{
    return DayNotes::passedOver(m_program, Function::Planner);
}

QList<HouseholdNote> HouseholdNotes::occasions(QDate from, QDate to) const
{
    QList<HouseholdNote> notes = all(from, to);
    notes.removeIf(std::not_fn(isOccasion));
    return notes;
}

QList<HouseholdNote> HouseholdNotes::inDays(QDate from, QDate to) const
{
    QList<HouseholdNote> notes = all(from, to);
    notes.removeIf([](const HouseholdNote &note) { return !isOccasion(note) && !isToBePaid(note.note); });
    std::ranges::stable_sort(notes, std::ranges::greater(), isOccasion);
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
    DayNotes::open(m_program, note);
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
    for (qsizetype shown = notes.size() - 1; shown > 1; --shown) {
        QString some = joined(notes.first(shown)) + u"; %1 more"_s.arg(notes.size() - shown);
        if (metrics.horizontalAdvance(some) <= width)
            return some;
    }
    const DayNote &first = notes.front().note;
    const QString fact = first.text.sliced(first.nameLength);
    const QString more = notes.size() > 1 ? u"; %1 more"_s.arg(notes.size() - 1) : QString();
    // In a narrow place the name loses something: whose day it is must still be told.
    const int least = width * 2 / 5;
    const int room = width - metrics.horizontalAdvance(fact + more);
    const QString name = first.text.first(first.nameLength);
    if (room < least && first.kind == NoteKind::Birthday && first.nameLength > 0)
        return fitting(narrowBirthday(name, fact, notes.size() - 1), metrics, width);
    if (isToBePaid(first) && first.nameLength > 0) {
        const QString shortFact = fact.section(u", "_s, 0, 0);
        // ": 64.50" is less important than what it is for.
        const bool hasAmount = shortFact.size() > 2 && shortFact[2].isDigit();
        if (hasAmount)
            return fitting(narrowDue(name, shortFact, notes.size() - 1), metrics, width);
        return fitting(narrowTask(name, shortFact, notes.size() - 1), metrics, width);
    }
    const QString shownName = metrics.elidedText(name, Qt::ElideRight, std::max(least, room));
    return metrics.elidedText(shownName + fact + more, Qt::ElideRight, width);
}

QLatin1StringView HouseholdNotes::sign(const QList<HouseholdNote> &notes)
{
    switch (notes.isEmpty() ? NoteKind::Birthday : notes.first().note.kind) {
    case NoteKind::Anniversary:
        return "anniversary"_L1;
    case NoteKind::Due:
        return "due"_L1;
    case NoteKind::Overdue:
        return "overdue"_L1;
    default:
        return "cake"_L1;
    }
}
