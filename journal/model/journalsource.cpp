// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalsource.h"

#include "journal/model/journalfiles.h"
#include "journal/model/journalhit.h"
#include "journal/model/journalyear.h"
#include "shell/core/dates.h"

#include <algorithm>
#include <cstdlib>

JournalSource::JournalSource(const DataFolder &folder, const Clock &clock, DateStyle style)
    : m_folder(folder)
    , m_clock(clock)
    , m_style(style)
{}

bool JournalSource::prepare()
{
    QList<int> years = JournalFiles::years(m_folder);
    const auto isSealed = [this](int year) { return JournalFiles::isSealed(m_folder, year); };
    if (std::ranges::any_of(years, isSealed)) {
        m_years.clear();
        return false;
    }
    std::erase_if(m_years, [&years](const auto &year) { return !years.contains(year.first); });
    years.removeIf([this](int year) {
        const auto known = m_years.find(year);
        return known != m_years.end() && known->second.seen == JournalFiles::stamp(m_folder, year);
    });
    if (years.isEmpty())
        return false;
    const int now = m_clock.today().year();
    const int number = *std::ranges::min_element(years, {}, [now](int year) { return std::abs(year - now); });
    Year &year = m_years[number];
    year.seen = JournalFiles::stamp(m_folder, number);
    const QByteArray bytes = JournalFiles::read(m_folder, number).value_or(QByteArray());
    year.folded = FoldedYear(JournalForm::blocks(bytes, number));
    return true;
}

QList<SearchHit> JournalSource::matches(QStringView text, int most) const
{
    QList<SearchHit> hits;
    const JournalQuestion question(text);
    if (question.isEmpty())
        return hits;
    for (auto at = m_years.rbegin(); at != m_years.rend() && int(hits.size()) < most; ++at) {
        FoldedYear &folded = at->second.folded;
        folded.ask(question, false);
        if (folded.count() == 0)
            continue;
        const QByteArray bytes = JournalFiles::read(m_folder, at->first).value_or(QByteArray());
        if (JournalForm::formOf(bytes) == JournalForm::Form::Sealed)
            return {};
        JournalYear year;
        year.setBlocks(JournalForm::blocks(bytes, at->first));
        for (std::size_t hit = folded.count(); hit > 0 && int(hits.size()) < most; --hit) {
            const QDate date = folded.hit(hit - 1);
            if (const auto entry = year.untimed(date))
                hits.append(SearchHit{Dates::longText(date, m_style),
                                      JournalHit::of(*entry, question).context, Place{.date = date}});
        }
    }
    return hits;
}
