// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/calendarfill.h"
#include "shell/program/functions.h"

#include <QString>

#include <optional>
#include <vector>

struct Program;

/// One thing that a calendar can be filled from: what a function has of one kind, the holidays, the rules. Of
/// a function that the password guards nothing is known before that was given.
struct FillRow {
    std::optional<Function> function{};
    LineSource source = LineSource::Planner;
    QString caption;
    QString from; ///< the function that has it
    QList<DayNote> notes{};
    bool isGuarded = false; ///< by the password
    bool isRead = true;     ///< what it has is known
    bool isTicked = false;
};

/// What a calendar can be filled from.
class FillRows
{
public:
    /// Asks every function that has notes for dates, unless the password guards it, for the calendar's
    /// months.
    static FillRows of(const Program &program, const WallCalendar &calendar);

    const std::vector<FillRow> &rows() const { return m_rows; }
    std::vector<FillRow> &rows() { return m_rows; }
    bool isEmpty() const { return m_rows.empty(); }

    /// The password was given: what the function of this row has takes the row's place, ticked.
    void open(const Program &program, std::size_t row);
    /// Ticks what comes from `sources`; all that is not guarded where there are none yet.
    void tick(const QList<LineSource> &sources);
    bool isAnyTicked() const;
    bool isGuardedTicked() const;

    /// What filling from the ticked rows would change.
    FillPlan plan(QDate today) const;
    /// The same for everything that the calendar was filled from, as far as it may be asked.
    FillPlan planAsBefore(QDate today) const;

private:
    void addFunction(const Program &program, Function function);
    void addOwn(const Program &program);
    void addGone();
    bool wasTaken(const FillRow &row) const;
    QList<FillSource> sources(bool isAsBefore) const;

    WallCalendar m_calendar;
    std::vector<FillRow> m_rows;
};
