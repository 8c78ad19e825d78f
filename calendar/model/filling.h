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
    using Origin = std::pair<LineSource, QDate>;
    using Key = std::pair<qint64, QString>; ///< origin and text

    static Key keyOf(const DayLine &line);

    bool isCompared(const DayLine &line) const;
    void add(const FillSource &source);
    void compare();
    bool find(const DayLine &line);
    void settleMissed();
    bool exchange(const Missed &missed);
    void takeOut();
    void insertNew();
    static QList<DayLine> merged(const QList<DayLine> &lines, std::vector<const Fresh *> &fresh);

    WallCalendar m_calendar;
    std::set<LineSource> m_taken;
    std::set<LineSource> m_unread;
    std::vector<Fresh> m_fresh;
    QHash<Key, QList<int>> m_places; ///< of the fresh lines that are not found yet, the first last
    std::map<Origin, std::vector<int>>
        m_unfound; ///< the same of those that are wanted, by where they come from
    std::vector<Missed> m_missed;
    std::map<QDate, std::vector<int>> m_out;           ///< lines that go
    std::map<QDate, std::vector<const Fresh *>> m_new; ///< lines that come
    FillSummary m_summary;
};
