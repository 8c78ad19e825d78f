// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarfile.h"

#include "calendar/model/calendarline.h"

#include <QHash>

#include <algorithm>
#include <vector>

namespace {

/// The lines of a file behind its first one.
template <typename Take>
void forEachLine(QByteArrayView bytes, Take take)
{
    qsizetype end = bytes.indexOf('\n');
    while (end >= 0 && end + 1 < bytes.size()) {
        const qsizetype from = end + 1;
        end = bytes.indexOf('\n', from);
        take(TabLine::lineOf(bytes.sliced(from, (end < 0 ? bytes.size() : end) - from)));
    }
}

/// What a file has beside the lines of a calendar.
class Kept
{
public:
    explicit Kept(const QList<QByteArray> &written)
    {
        m_left.reserve(written.size());
        m_next.resize(std::size_t(written.size()), none);
        for (int place = int(written.size()) - 1; place >= 0; --place) {
            const auto same = m_left.find(written.at(place));
            if (same == m_left.end()) {
                m_left.insert(written.at(place), place);
            } else {
                m_next[std::size_t(place)] = *same;
                *same = place;
            }
        }
    }

    /// Goes on with a line of the former file.
    void pass(const QByteArray &line)
    {
        // What a calendar says of days it says as often as it likes: such a line need not be read again.
        int place = line.startsWith("day\t") ? taken(line) : none;
        if (place < 0 && !m_taker.take(line)) {
            m_behind[m_last].append(line);
            return;
        }
        if (place < 0)
            place = taken(line);
        // One that is written differently now keeps its bytes.
        const int other = place < 0 ? taken(CalendarLine::rewritten(line)) : place;
        if (other != place)
            m_spelled.insert(other, line);
        // What stands behind several lines stays behind all of them, whatever order they had.
        m_last = std::max(m_last, other);
    }

    void appendFirst(QByteArray &file) const { appendBehind(file, none); }

    /// Appends the calendar's line of that place, and what stands behind it.
    void append(QByteArray &file, const QByteArray &line, int place) const
    {
        file.append(m_spelled.value(place, line)).append(TabLine::lineEnd);
        appendBehind(file, place);
    }

private:
    static constexpr int none = -1;

    int taken(const QByteArray &line)
    {
        const auto same = m_left.find(line);
        if (same == m_left.end() || *same < 0)
            return none;
        const int place = *same;
        *same = m_next[std::size_t(place)];
        return place;
    }

    void appendBehind(QByteArray &file, int place) const
    {
        for (const QByteArray &line : m_behind.value(place))
            file.append(line).append(TabLine::lineEnd);
    }

    CalendarLine::Taker m_taker;
    QHash<QByteArray, int> m_left; ///< the first place of each of the calendar's lines that is not found yet
    std::vector<int> m_next;       ///< the next place of the same line
    QHash<int, QByteArray> m_spelled;
    QHash<int, QList<QByteArray>> m_behind;
    int m_last = none;
};

} // namespace

TabLine::Form CalendarFile::formOf(QByteArrayView bytes)
{
    return TabLine::formOf(bytes, firstLine);
}

WallCalendar CalendarFile::read(QByteArrayView bytes)
{
    CalendarLine::Taker taker;
    if (formOf(bytes) != TabLine::Foreign)
        forEachLine(bytes, [&taker](QByteArrayView line) { taker.take(line); });
    return taker.calendar();
}

QByteArray CalendarFile::write(const WallCalendar &calendar, const QByteArray &former)
{
    const QList<QByteArray> lines = CalendarLine::of(calendar);
    Kept kept(lines);
    if (formOf(former) == TabLine::Known)
        forEachLine(former, [&kept](QByteArrayView line) { kept.pass(line.toByteArray()); });
    QByteArray file = firstLine.toByteArray();
    file.append(TabLine::lineEnd);
    kept.appendFirst(file);
    for (int place = 0; place < lines.size(); ++place)
        kept.append(file, lines.at(place), place);
    return file;
}
