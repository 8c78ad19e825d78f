// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/recurrencerun.h"
#include "planner/model/todoimport.h"

/// The walk over To Do items that takes them into the planner, an item a step, so that whoever drives it can
/// show progress and stop it. Each day is written before the next item is looked at.
class ToDoImportRun
{
public:
    /// Items dated before `earliest` are passed over.
    ToDoImportRun(PlannerFiles &files, UntimedPlacement placement, std::vector<DatedToDo> items,
                  QDate earliest);

    /// Works on the next item; false when there is none left, or when the disk refused this one.
    bool step();

    /// The days that were written so far, as they were and as they are.
    const RecordChange &change() const { return m_change; }

    int made() const { return m_made; }
    int there() const { return m_there; }
    int full() const { return m_full; }
    int passedOver() const { return m_passedOver; }
    /// The date that the disk refused; invalid while it has refused none.
    QDate refused() const { return m_refused; }
    /// Items worked on so far, and how many there are in all.
    int done() const { return int(m_next); }
    int count() const { return int(m_items.size()); }

    /// What came of it, for the status bar.
    QString report(bool wasStopped, DateStyle style) const;

private:
    DateResult insert(const DatedToDo &item);

    PlannerFiles &m_files;
    UntimedPlacement m_placement;
    std::vector<DatedToDo> m_items;
    QDate m_earliest;
    std::size_t m_next = 0;
    int m_made = 0;
    int m_there = 0;
    int m_full = 0;
    int m_passedOver = 0;
    QDate m_refused;
    RecordChange m_change;
};
