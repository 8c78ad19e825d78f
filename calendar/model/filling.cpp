// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/filling.h"

#include "calendar/model/calendaredits.h"
#include "shell/core/timeofday.h"

#include <algorithm>

namespace {

constexpr qint64 sourceCount = 8;

/// Whether a source may have changed `former` into `now`: most of it is the same.
bool isAlike(QStringView former, QStringView now)
{
    const qsizetype shorter = std::min(former.size(), now.size());
    qsizetype front = 0;
    while (front < shorter && former[front] == now[front])
        ++front;
    qsizetype back = 0;
    while (front + back < shorter && former[former.size() - 1 - back] == now[now.size() - 1 - back])
        ++back;
    return 2 * (front + back) > shorter;
}

} // namespace

Filling::Filling(const WallCalendar &calendar, const QList<FillSource> &sources)
    : m_calendar(calendar)
    , m_from(calendar.from)
    , m_to(calendar.lastDay())
{
    for (const FillSource &source : sources) {
        if (source.use != FillSource::LeftOut)
            (source.use == FillSource::Taken ? m_taken : m_unread).insert(source.source);
    }
    // Of the same text what is taken is found first.
    for (const FillSource::Use use : {FillSource::Taken, FillSource::LeftOut}) {
        for (const FillSource &source : sources) {
            if (source.use == use && m_taken.contains(source.source))
                add(source);
        }
    }
    for (std::size_t place = 0; place < m_fresh.size(); ++place)
        m_places[originOf(m_fresh[place].line)].push_back(int(place));
}

FillPlan Filling::plan(QDate today)
{
    compare();
    settleMissed();
    takeOut();
    insertNew();
    noteFilled(today);
    return {m_calendar, m_summary};
}

/// What had nothing yet was not filled from; without holidays or rules a calendar is not any more.
void Filling::noteFilled(QDate today)
{
    for (const LineSource source : m_taken) {
        const bool isOwn = source == LineSource::Holiday || source == LineSource::Rule;
        if (m_noted.contains(source) || (m_calendar.filled.contains(source) && !isOwn))
            m_calendar.filled.insert(source, today);
        else
            m_calendar.filled.remove(source);
    }
}

Filling::Origin Filling::originOf(const DayLine &line)
{
    return line.origin.toJulianDay() * sourceCount + qint64(line.source);
}

bool Filling::isCompared(const DayLine &line) const
{
    return !line.isTyped() && isIn(line.origin) && m_taken.contains(line.source);
}

void Filling::add(const FillSource &source)
{
    m_fresh.reserve(m_fresh.size() + std::size_t(source.notes.size()));
    for (const DayNote &note : source.notes) {
        if (!isIn(note.date))
            continue;
        const QString text = CalendarEdits::lineText(CalendarFill::textOf(note));
        if (text.isEmpty())
            continue;
        m_noted.insert(source.source);
        const DayLine line{.source = source.source, .origin = note.date, .original = text, .shown = text};
        m_fresh.push_back(
            {line, CellOrder::rankOf(source.source, note.time), source.use == FillSource::Taken});
    }
}

void Filling::compare()
{
    for (const auto &[date, lines] : m_calendar.days.asKeyValueRange()) {
        for (int place = 0; place < lines.size(); ++place) {
            const DayLine &line = lines.at(place);
            m_summary.own += line.isTyped() || line.isEdited() ? 1 : 0;
            if (isCompared(line) && !find(line))
                m_missed.push_back({date, place});
        }
    }
}

/// The first of several that say the same.
bool Filling::find(const DayLine &line)
{
    const auto places = m_places.find(originOf(line));
    if (places == m_places.end())
        return false;
    const auto same = std::ranges::find_if(
        *places, [&](int place) { return m_fresh[std::size_t(place)].line.original == line.original; });
    if (same == places->end())
        return false;
    m_fresh[std::size_t(*same)].isThere = true;
    places->erase(same);
    return true;
}

/// What a person has edited or removed stays, and so does what may come from a source that was not asked.
void Filling::settleMissed()
{
    for (const Missed &missed : m_missed) {
        const DayLine line = m_calendar.days[missed.date].at(missed.line);
        if (line.isEdited() || m_unread.contains(line.source) || exchange(missed))
            continue;
        m_out[missed.date].push_back(missed.line);
        ++m_summary.gone;
    }
}

/// Exchanges a line for what it has become in its source. One that was moved is known again by its text
/// alone: something else of that day does not belong where it was put.
bool Filling::exchange(const Missed &missed)
{
    DayLine &line = m_calendar.days[missed.date][missed.line];
    const auto places = m_places.find(originOf(line));
    if (places == m_places.end())
        return false;
    const QStringView text = TimeOfDay::behindLeading(line.original);
    const auto same = std::ranges::find_if(*places, [&](int place) {
        const Fresh &fresh = m_fresh[std::size_t(place)];
        return fresh.isWanted &&
               (TimeOfDay::behindLeading(fresh.line.original) == text ||
                (missed.date == line.origin && isAlike(line.original, fresh.line.original)));
    });
    if (same == places->end())
        return false;
    Fresh &fresh = m_fresh[std::size_t(*same)];
    places->erase(same);
    fresh.isThere = true;
    ++m_summary.changed;
    if (CellOrder::rankOf(line) == fresh.rank) {
        line = fresh.line;
    } else {
        m_out[missed.date].push_back(missed.line);
        m_new[missed.date].push_back(&fresh);
    }
    return true;
}

void Filling::takeOut()
{
    for (const auto &[date, places] : m_out) {
        QList<DayLine> &lines = m_calendar.days[date];
        for (auto place = places.rbegin(); place != places.rend(); ++place)
            lines.removeAt(*place);
        if (lines.isEmpty())
            m_calendar.days.remove(date);
    }
}

void Filling::insertNew()
{
    for (const Fresh &fresh : m_fresh) {
        if (fresh.isThere || !fresh.isWanted)
            continue;
        m_new[fresh.line.origin].push_back(&fresh);
        ++m_summary.fresh;
    }
    for (auto &[date, fresh] : m_new)
        m_calendar.days[date] = merged(m_calendar.days.value(date), fresh);
}

/// Lines that are there keep their order among themselves.
QList<DayLine> Filling::merged(const QList<DayLine> &lines, std::vector<const Fresh *> &fresh)
{
    std::ranges::stable_sort(fresh,
                             [](const Fresh *one, const Fresh *other) { return one->rank < other->rank; });
    QList<DayLine> all;
    all.reserve(lines.size() + qsizetype(fresh.size()));
    auto next = fresh.begin();
    for (const DayLine &line : lines) {
        for (const CellOrder::Rank rank = CellOrder::rankOf(line);
             next != fresh.end() && (*next)->rank < rank; ++next)
            all.append((*next)->line);
        all.append(line);
    }
    for (; next != fresh.end(); ++next)
        all.append((*next)->line);
    return all;
}
