// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetsource.h"

#include "budget/model/budgetfigures.h"
#include "budget/model/budgetfiles.h"
#include "shell/core/dates.h"
#include "storage/ansitext.h"

#include <algorithm>
#include <array>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

BudgetSource::BudgetSource(const DataFolder &folder, const Clock &clock, DateStyle style)
    : m_folder(folder)
    , m_clock(clock)
    , m_style(style)
{}

QList<int> BudgetSource::years() const
{
    QList<int> years = BudgetFiles(m_folder).years();
    for (const int year : SpendingFiles(m_folder).years()) {
        if (!years.contains(year))
            years.append(year);
    }
    const int now = m_clock.today().year();
    // The nearest years stand last, where they are taken first.
    std::ranges::stable_sort(years, std::ranges::greater(), [now](int year) { return std::abs(year - now); });
    return years;
}

bool BudgetSource::prepare()
{
    if (!m_isChecking) {
        m_unchecked = years();
        std::erase_if(m_years, [this](const auto &year) { return !m_unchecked.contains(year.first); });
        m_isChecking = true;
    }
    while (!m_unchecked.isEmpty()) {
        const int number = m_unchecked.takeLast();
        const FileStamp now =
            FileStamp::of(m_folder, {BudgetFiles::fileName(number), SpendingFiles::fileName(number)});
        if (const auto known = m_years.find(number); known != m_years.end() && known->second.seen == now)
            continue;
        Year year = read(number);
        year.seen = now;
        m_years.insert_or_assign(number, std::move(year));
        return true;
    }
    m_isChecking = false;
    return false;
}

BudgetSource::Year BudgetSource::read(int year) const
{
    Year found;
    const auto add = [&found](const SearchHit &hit) {
        found.hits.push_back(hit);
        found.texts.beginText();
        found.texts.addLine(AnsiText::encode(hit.title));
        found.texts.addLine(AnsiText::encode(hit.context));
    };
    const BudgetSheet sheet = BudgetFiles(m_folder).read(year).sheet;
    for (const BudgetFigures::Item &item : BudgetFigures::items(sheet))
        add({item.item.trimmed(),
             u"Budget of "_s + QString::number(year) + u", "_s +
                 centsText(qint64(std::llround(item.total * 100))),
             {.record = year, .row = int(item.row)}});
    const BudgetItems items(sheet);
    for (const SpentAmount &spent : SpendingFiles(m_folder).read(year).spending.amounts) {
        const QString note = spent.note.text().simplified();
        const QString details = Dates::shortWithYear(spent.date, m_style) + u", "_s + centsText(spent.cents);
        const bool hasNote = !note.isEmpty();
        add({hasNote ? note : spent.item,
             hasNote && !spent.item.isEmpty() ? spent.item + u", "_s + details : details,
             {.record = year, .date = spent.date, .row = items.row(spent.item)}});
    }
    found.texts.squeeze();
    return found;
}

QList<SearchHit> BudgetSource::matches(QStringView text, int most) const
{
    const TextIndex::Words words(text);
    std::array<QList<SearchHit>, TextIndex::rankCount> found;
    const int now = m_clock.today().year();
    std::vector<int> nearest;
    for (const auto &[year, texts] : m_years)
        nearest.push_back(year);
    std::ranges::stable_sort(nearest, {}, [now](int year) { return std::abs(year - now); });
    for (const int number : nearest) {
        const Year &year = m_years.at(number);
        year.texts.find(words, [&](const TextIndex::Hit &hit) {
            QList<SearchHit> &like = found[std::size_t(hit.rank)];
            if (int(like.size()) < most)
                like.append(year.hits[std::size_t(hit.text)]);
            return int(found.front().size()) < most;
        });
    }
    QList<SearchHit> hits;
    for (const QList<SearchHit> &like : found)
        hits += like.first(std::min(like.size(), most - hits.size()));
    return hits;
}
