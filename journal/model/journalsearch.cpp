// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalsearch.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

JournalSearch::JournalSearch(Journal &journal)
    : m_journal(journal)
{}

/// Folds the year where it was not yet, or has changed, and looks for the question there.
void JournalSearch::look(int number, Year &year)
{
    const JournalYear &read = m_journal.year(number);
    if (year.revision == read.revision)
        return;
    year.revision = read.revision;
    year.folded = FoldedYear(read.blocks());
    if (!m_question.isEmpty())
        year.folded.ask(m_question, false);
}

void JournalSearch::setQuestion(const QString &typed)
{
    const JournalQuestion question(typed);
    const bool isNarrower = !m_question.isEmpty() && question.isNarrowerThan(m_question);
    m_question = question;
    for (auto &[number, year] : m_years) {
        if (question.isEmpty())
            year.folded.forget();
        else
            year.folded.ask(question, isNarrower);
    }
}

bool JournalSearch::step(int nearest)
{
    QList<int> unread = m_journal.years();
    unread.removeIf([this](int year) { return m_years.contains(year); });
    if (unread.isEmpty())
        return false;
    const int number =
        *std::ranges::min_element(unread, {}, [nearest](int year) { return std::abs(year - nearest); });
    look(number, m_years[number]);
    return true;
}

QList<QDate> JournalSearch::dates()
{
    QList<QDate> dates;
    if (isEmpty())
        return dates;
    for (auto &[number, year] : m_years)
        look(number, year);
    dates.reserve(count());
    for (auto at = m_years.rbegin(); at != m_years.rend(); ++at) {
        const FoldedYear &folded = at->second.folded;
        for (std::size_t hit = folded.count(); hit > 0; --hit)
            dates.append(folded.hit(hit - 1));
    }
    return dates;
}

int JournalSearch::count() const
{
    return std::accumulate(m_years.begin(), m_years.end(), 0,
                           [](int sum, const auto &year) { return sum + int(year.second.folded.count()); });
}

JournalHit JournalSearch::hit(QDate date)
{
    const std::optional<JournalEntry> entry = m_journal.year(date.year()).untimed(date);
    return entry ? JournalHit::of(*entry, m_question) : JournalHit{.date = date};
}

QList<JournalHit> JournalSearch::hits()
{
    QList<JournalHit> hits;
    const QList<QDate> dates = this->dates();
    for (const QDate date : dates.first(std::min<qsizetype>(dates.size(), mostHits))) {
        if (const std::optional<JournalEntry> entry = m_journal.year(date.year()).untimed(date))
            hits.append(JournalHit::of(*entry, m_question));
    }
    return hits;
}

void JournalSearch::clear()
{
    m_years.clear();
    m_question = {};
}

qsizetype JournalSearch::memoryUsed() const
{
    return std::accumulate(m_years.begin(), m_years.end(), qsizetype(0), [](qsizetype sum, const auto &year) {
        return sum + year.second.folded.memoryUsed();
    });
}
