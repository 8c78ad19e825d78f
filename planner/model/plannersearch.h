// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerfiles.h"
#include "planner/model/rowsearch.h"

#include <QDate>
#include <QString>

#include <vector>

/// One row of the planner that a search found.
struct PlannerHit {
    QDate date;
    int row = 0;
    QString time;
    QString text;

    bool operator==(const PlannerHit &) const = default;
};

/// Looks for a text in the appointments of all years, a year a step, so that whoever drives it can show
/// progress and stop it. Upper and lower case are alike; the text may stand anywhere in a time or a text.
class PlannerSearch
{
public:
    /// The search goes back from the latest year and ends with the one that brings the hits to this number.
    static constexpr std::size_t mostHits = 5000;

    PlannerSearch(const PlannerFiles &files, const QString &text);

    /// Looks through the next year; false when none is left. An empty text finds nothing.
    bool step();

    /// What was found so far, by date.
    const std::vector<PlannerHit> &hits() const { return m_hits; }
    int yearCount() const { return int(m_years.size()); }

private:
    void look(QByteArrayView record, int number, int year);

    const PlannerFiles &m_files;
    RowSearch m_rows;
    QList<int> m_years;
    int m_done = 0;
    std::vector<PlannerHit> m_hits;
};
