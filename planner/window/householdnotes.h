// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerpages.h"
#include "shell/program/daynotes.h"

#include <QFontMetrics>

struct Program;
class QWidget;

/// What the other functions have for dates. The planner shows it beside its own entries and never takes it in
/// among them.
class HouseholdNotes
{
public:
    explicit HouseholdNotes(const Program &program)
        : m_program(program)
    {}

    /// What all functions but the planner have for the days `from` to `to`, by date. One that the password
    /// guards is not asked.
    QList<HouseholdNote> all(QDate from, QDate to) const;
    /// The birthdays and anniversaries among them: what stands with the days themselves.
    QList<HouseholdNote> occasions(QDate from, QDate to) const;
    /// And what is to be paid, behind them: for the views of several days, which have no list of what is
    /// coming up for each of them.
    QList<HouseholdNote> inDays(QDate from, QDate to) const;
    /// The occasions as texts, for pages, which may hang where everybody sees them.
    PlannerPages::Notes texts(QDate from, QDate to) const;

    /// The functions that the password keeps from being asked, by their titles.
    QStringList passedOver() const;

    /// Shows where the note comes from, behind that function's guard; of several the user chooses in a menu
    /// at `place`, which belongs to `owner`.
    void open(const QList<HouseholdNote> &notes, QPoint place, QWidget *owner) const;
    void open(const HouseholdNote &note) const;

    /// "Anne Lind turns 48; Tom Lind turns 12".
    static QString joined(const QList<HouseholdNote> &notes);
    /// The same in `width` pixels: of the first its name is cut, and of others that find no room only their
    /// number is told.
    static QString cut(const QList<HouseholdNote> &notes, const QFontMetrics &metrics, int width);
    /// The drawing of the first of them: a cake, rings, the sign of what is due.
    static QLatin1StringView sign(const QList<HouseholdNote> &notes);

private:
    const Program &m_program;
};
