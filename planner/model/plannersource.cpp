// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannersource.h"

#include "planner/model/dayrecord.h"
#include "shell/core/dates.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowCount = int(PlannerDay::rowCount);
constexpr qsizetype timesLength = rowCount * PlannerDay::timeWidth;
constexpr qsizetype rowsLength = timesLength + rowCount * PlannerDay::textWidth;

/// Days from `today` to the nearest day of `year`.
qint64 distanceTo(int year, QDate today)
{
    if (year == today.year())
        return 0;
    return std::abs(today.daysTo(year > today.year() ? QDate(year, 1, 1) : QDate(year, 12, 31)));
}

bool isBlank(QByteArrayView bytes)
{
    return std::ranges::all_of(bytes, [](char byte) { return byte == ' ' || byte == '\0'; });
}

/// "Sat, Nov 21, 2026, 9:30 AM"
QString contextOf(QDate date, QStringView time, DateStyle style)
{
    const QString day = Dates::statusText(date, style);
    return time.trimmed().isEmpty() ? day : day + u", "_s + time.trimmed();
}

} // namespace

PlannerSource::PlannerSource(const DataFolder &folder, const Clock &clock, DateStyle style)
    : m_folder(folder)
    , m_files(folder)
    , m_clock(clock)
    , m_style(style)
{}

bool PlannerSource::prepare()
{
    if (!m_isChecking) {
        m_unchecked = m_files.years();
        std::erase_if(m_years, [this](const auto &year) { return !m_unchecked.contains(year.first); });
        const QDate today = m_clock.today();
        // The nearest years stand last, where they are taken first.
        std::ranges::stable_sort(m_unchecked, std::ranges::greater(),
                                 [today](int year) { return distanceTo(year, today); });
        m_isChecking = true;
    }
    while (!m_unchecked.isEmpty()) {
        const int number = m_unchecked.takeLast();
        const FileStamp now = FileStamp::of(m_folder, {DayRecord::yearFileName(number)});
        if (const auto known = m_years.find(number); known != m_years.end() && known->second.seen == now)
            continue;
        Year year = read(m_files.yearBytes(number));
        year.seen = now;
        m_years.insert_or_assign(number, std::move(year));
        return true;
    }
    m_isChecking = false;
    return false;
}

PlannerSource::Year PlannerSource::read(const QByteArray &bytes)
{
    Year year;
    for (int number = 1; number <= DayRecord::last; ++number) {
        const QByteArrayView record = DayRecord::ofNumber(bytes, number);
        if (record.size() < rowsLength || !DayRecord::isSaved(record))
            continue;
        for (int row = 0; row < rowCount; ++row) {
            const QByteArrayView time = record.sliced(row * PlannerDay::timeWidth, PlannerDay::timeWidth);
            const QByteArrayView text =
                record.sliced(timesLength + row * PlannerDay::textWidth, PlannerDay::textWidth);
            if (isBlank(time) && isBlank(text))
                continue;
            year.rows.push_back(quint16(number * rowCount + row));
            year.texts.beginText();
            year.texts.addLine(text);
            year.texts.addLine(time);
        }
    }
    year.texts.squeeze();
    year.rows.shrink_to_fit();
    return year;
}

qsizetype PlannerSource::memoryUsed() const
{
    qsizetype bytes = 0;
    for (const auto &[number, year] : m_years)
        bytes += year.texts.memoryUsed() + qsizetype(year.rows.capacity() * sizeof(quint16));
    return bytes;
}

/// Of the best hits of `year` the dates and rows: those that begin a word apart from the others.
void PlannerSource::look(int year, const TextIndex::Words &words, QDate today,
                         std::array<std::vector<Found>, 2> &found) const
{
    const Year &looked = m_years.at(year);
    looked.texts.find(words, [&](const TextIndex::Hit &hit) {
        const int row = looked.rows[std::size_t(hit.text)];
        const QDate date = DayRecord::date(row / rowCount, year);
        if (date.isValid())
            found[hit.rank == TextIndex::Inside ? 1 : 0].push_back(
                {date, row % rowCount, std::abs(today.daysTo(date))});
        return true;
    });
}

QList<SearchHit> PlannerSource::matches(QStringView text, int most) const
{
    const TextIndex::Words words(text);
    const QDate today = m_clock.today();
    std::vector<int> years;
    for (const auto &[year, texts] : m_years)
        years.push_back(year);
    std::ranges::stable_sort(years, {}, [today](int year) { return distanceTo(year, today); });

    // What is to come stands before what is as long ago.
    const auto isNearer = [today](const Found &one, const Found &other) {
        if (one.distance != other.distance)
            return one.distance < other.distance;
        return std::pair(one.date < today, one.row) < std::pair(other.date < today, other.row);
    };
    std::array<std::vector<Found>, 2> found;
    for (const int year : years) {
        const std::vector<Found> &best = found.front();
        if (int(best.size()) >= most && distanceTo(year, today) > best.back().distance)
            break;
        look(year, words, today, found);
        for (std::vector<Found> &like : found) {
            const auto end = like.begin() + std::min(most, int(like.size()));
            std::partial_sort(like.begin(), end, like.end(), isNearer);
            like.erase(end, like.end());
        }
    }

    QList<SearchHit> hits;
    for (const std::vector<Found> &like : found) {
        for (const Found &one : like) {
            if (int(hits.size()) == most)
                return hits;
            const PlannerDay day = m_files.peek(one.date);
            const auto row = std::size_t(one.row);
            if (day.isRowEmpty(row))
                continue;
            const QString title = day.texts[row].trimmed();
            hits.append({title.isEmpty() ? day.times[row].trimmed() : title,
                         contextOf(one.date, title.isEmpty() ? QString() : day.times[row], m_style),
                         {.date = one.date, .row = one.row}});
        }
    }
    return hits;
}
