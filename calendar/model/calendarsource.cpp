// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarsource.h"

#include "calendar/model/calendarfile.h"
#include "calendar/model/calendarfiles.h"
#include "shell/core/dates.h"
#include "storage/ansitext.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

CalendarSource::CalendarSource(const DataFolder &folder, DateStyle style)
    : m_folder(folder)
    , m_style(style)
{}

/// A calendar a time.
bool CalendarSource::prepare()
{
    if (m_left.isEmpty()) {
        const FileStamp now = FileStamp::of(m_folder, CalendarFiles::names(m_folder));
        if (m_seen == now)
            return false;
        m_seen = now;
        begin();
    } else {
        add(m_left.takeLast());
        if (m_left.isEmpty())
            m_texts.squeeze();
    }
    return true;
}

void CalendarSource::begin()
{
    m_entries.clear();
    m_texts.clear();
    QList<CalendarHead> heads = CalendarFiles::heads(m_folder);
    std::ranges::stable_sort(heads, {}, &CalendarHead::from);
    for (const CalendarHead &head : heads) {
        if (head.isCalendar())
            m_left.append(head.number);
    }
}

void CalendarSource::add(int number)
{
    const WallCalendar calendar =
        CalendarFile::read(CalendarFiles::read(m_folder, number).value_or(QByteArray()));
    const QString title = calendar.title.isEmpty() ? CalendarFiles::name(number) : calendar.title;
    add(title, {}, {.record = number});
    for (const auto &[date, lines] : calendar.days.asKeyValueRange()) {
        for (int line = 0; line < lines.size(); ++line) {
            if (const DayLine &said = lines.at(line);
                said.isTyped() || (said.isEdited() && !said.isRemoved()))
                add(said.shown, title, {.record = number, .date = date, .row = line});
        }
    }
    for (const CalendarSpan &span : calendar.spans)
        add(span.text, title, {.record = number, .date = span.from});
}

void CalendarSource::add(const QString &text, const QString &title, const Place &place)
{
    m_entries.push_back({text, title, place});
    m_texts.beginText();
    m_texts.addLine(AnsiText::encode(text));
}

SearchHit CalendarSource::hit(const Entry &entry) const
{
    QStringList context;
    if (entry.place.date.isValid())
        context << entry.title << Dates::monthDayYear(entry.place.date, m_style);
    return {entry.text, context.join(u", "_s), entry.place};
}

QList<SearchHit> CalendarSource::matches(QStringView text, int most) const
{
    const TextIndex::Words words(text);
    std::array<std::vector<int>, TextIndex::rankCount> found;
    m_texts.find(words, [&](const TextIndex::Hit &hit) {
        if (std::vector<int> &like = found[std::size_t(hit.rank)]; int(like.size()) < most)
            like.push_back(hit.text);
        return int(found.front().size()) < most;
    });
    QList<SearchHit> hits;
    for (const std::vector<int> &like : found) {
        for (const int entry : like) {
            if (int(hits.size()) < most)
                hits.append(hit(m_entries[std::size_t(entry)]));
        }
    }
    return hits;
}
