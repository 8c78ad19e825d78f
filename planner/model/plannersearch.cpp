// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannersearch.h"

#include "planner/model/dayrecord.h"

#include <algorithm>
#include <iterator>
#include <utility>

PlannerSearch::PlannerSearch(const PlannerFiles &files, const QString &text)
    : m_files(files)
    , m_rows(AnsiText::trimmedBlanks(text))
    , m_years(m_rows.isPossible() ? files.years() : QList<int>())
{}

bool PlannerSearch::step()
{
    if (m_done >= yearCount() || m_hits.size() >= mostHits)
        return false;
    const int year = m_years.at(yearCount() - ++m_done);
    const QByteArray bytes = m_files.yearBytes(year);
    std::vector<PlannerHit> later = std::move(m_hits);
    m_hits.clear();
    for (int number = 1; number <= DayRecord::last; ++number)
        look(DayRecord::ofNumber(bytes, number), number, year);
    // Records follow days of the month before months.
    std::stable_sort(m_hits.begin(), m_hits.end(),
                     [](const PlannerHit &one, const PlannerHit &other) { return one.date < other.date; });
    m_hits.insert(m_hits.end(), std::move_iterator(later.begin()), std::move_iterator(later.end()));
    return true;
}

void PlannerSearch::look(QByteArrayView record, int number, int year)
{
    const RowSearch::Rows rows = m_rows.find(record);
    if (rows.none() || !DayRecord::isSaved(record))
        return;
    const QDate date = DayRecord::date(number, year);
    if (!date.isValid())
        return;
    const PlannerDay day = plannerDayLayout.decode(record);
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (rows.test(row))
            m_hits.push_back({date, int(row), day.times[row], day.texts[row]});
    }
}
