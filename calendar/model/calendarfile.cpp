// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarfile.h"

#include "calendar/model/calendarline.h"

#include <QHash>

#include <utility>

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

/// Which of several lines with the same bytes.
using Which = std::pair<QByteArray, int>;

/// What a file has beside the lines of a calendar.
class Kept
{
public:
    explicit Kept(const QList<QByteArray> &written)
    {
        for (const QByteArray &line : written)
            ++m_written[line];
    }

    /// Goes on with a line of the former file.
    void pass(const QByteArray &line)
    {
        if (!m_taker.take(line)) {
            m_behind[m_last].append(line);
            return;
        }
        // One that is written differently now keeps its bytes.
        const QByteArray same = isLeft(line) ? line : CalendarLine::rewritten(line);
        if (!isLeft(same))
            return;
        m_last = {same, ++m_passed[same]};
        if (same != line)
            m_spelled.insert(m_last, line);
    }

    void appendFirst(QByteArray &file) const { appendBehind(file, {}); }

    /// Appends a line of the calendar and what stands behind it.
    void append(QByteArray &file, const QByteArray &line)
    {
        const Which which{line, ++m_appended[line]};
        file.append(m_spelled.value(which, line)).append(TabLine::lineEnd);
        appendBehind(file, which);
    }

private:
    bool isLeft(const QByteArray &line) const { return m_passed.value(line) < m_written.value(line); }

    void appendBehind(QByteArray &file, const Which &which) const
    {
        for (const QByteArray &line : m_behind.value(which))
            file.append(line).append(TabLine::lineEnd);
    }

    CalendarLine::Taker m_taker;
    QHash<QByteArray, int> m_written;
    QHash<QByteArray, int> m_passed;
    QHash<QByteArray, int> m_appended;
    QHash<Which, QByteArray> m_spelled;
    QHash<Which, QList<QByteArray>> m_behind;
    Which m_last;
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
    for (const QByteArray &line : lines)
        kept.append(file, line);
    return file;
}
