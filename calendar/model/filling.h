// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/calendarfill.h"
#include "calendar/model/cellorder.h"

#include <QHash>

#include <map>
#include <set>
#include <utility>
#include <vector>

/// One filling of a calendar.
class Filling
{
public:
    Filling(const WallCalendar &calendar, const QList<FillSource> &sources);

    FillPlan plan(QDate today);

private:
    /// A line as its source has it now.
    struct Fresh {
        DayLine line;
        CellOrder::Rank rank;
        bool isWanted = true;
        bool isThere = false; ///< the calendar has it
    };
    /// A line of the calendar that no source has any more.
    struct Missed {
        QDate date;
        int line = 0;
    };
    /// Source and date.
    using Origin = qint64;

    static Origin originOf(const DayLine &line);

    bool isIn(QDate date) const { return date >= m_from && date <= m_to; }
    bool isCompared(const DayLine &line) const;
    void add(const FillSource &source);
    void compare();
    bool find(const DayLine &line);
    void settleMissed();
    bool exchange(const Missed &missed);
    void takeOut();
    void noteFilled(QDate today);
    void insertNew();
    static QList<DayLine> merged(const QList<DayLine> &lines, std::vector<const Fresh *> &fresh);

    WallCalendar m_calendar;
    QDate m_from;
    QDate m_to;
    std::set<LineSource> m_taken;
    std::set<LineSource> m_unread;
    std::set<LineSource> m_noted; ///< those that have something
    std::vector<Fresh> m_fresh;
    QHash<Origin, std::vector<int>> m_places; ///< of the fresh lines that are not found yet
    std::vector<Missed> m_missed;
    std::map<QDate, std::vector<int>> m_out;           ///< lines that go
    std::map<QDate, std::vector<const Fresh *>> m_new; ///< lines that come
    FillSummary m_summary;
};
