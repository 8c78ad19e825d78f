#include "planner/plannersearch.h"

#include <algorithm>

PlannerSearch::PlannerSearch(const PlannerFiles &files, const QString &text)
    : m_files(files)
    , m_text(AnsiText::trimmedBlanks(text).toString())
    , m_years(m_text.isEmpty() ? QList<int>() : files.years())
{}

bool PlannerSearch::step()
{
    if (m_done >= yearCount() || m_hits.size() >= mostHits)
        return false;
    const auto before = std::ptrdiff_t(m_hits.size());
    m_files.forEachDay(m_years.at(m_done), [this](QDate date, const PlannerDay &day) { look(date, day); });
    // Records follow days of the month before months.
    std::stable_sort(m_hits.begin() + before, m_hits.end(),
                     [](const PlannerHit &one, const PlannerHit &other) { return one.date < other.date; });
    ++m_done;
    return true;
}

void PlannerSearch::look(QDate date, const PlannerDay &day)
{
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (day.texts[row].contains(m_text, Qt::CaseInsensitive) ||
            day.times[row].contains(m_text, Qt::CaseInsensitive))
            m_hits.push_back({date, int(row), day.times[row], day.texts[row]});
    }
}
