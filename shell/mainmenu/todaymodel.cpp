// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/todaymodel.h"

#include "shell/core/dates.h"
#include "shell/program/daynotes.h"

#include <QLocale>

#include <algorithm>
#include <span>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

using Line = TodayModel::Line;
using Note = TodayNotes::Note;
using Notes = std::span<const Note>;

/// The first day of `notes`.
Notes firstDay(Notes notes)
{
    const auto other = std::ranges::find_if(
        notes, [&](const Note &note) { return note.note.date != notes.front().note.date; });
    return notes.first(std::size_t(other - notes.begin()));
}

/// `notes` in `room` lines, the last of which counts those that find none: first what is over, then the last.
void cut(Notes notes, std::size_t room, QList<Line> &lines)
{
    if (room == 0)
        return;
    const std::size_t most = notes.size() <= room ? room : room - 1;
    std::vector<const Note *> shown;
    std::size_t left = notes.size();
    for (const Note &note : notes) {
        if (left > most && note.isOver)
            --left;
        else
            shown.push_back(&note);
    }
    const bool isCutAtEnd = shown.size() > most;
    const QDate day = isCutAtEnd ? shown[most]->note.date : notes.empty() ? QDate() : notes.front().note.date;
    shown.resize(std::min(shown.size(), most));
    for (const Note *note : shown)
        lines.append({note->note.date, *note});
    if (shown.size() == notes.size())
        return;
    Line line{day, {}, int(notes.size() - shown.size()), isCutAtEnd ? notes.back().note.date : day};
    line.note.isOver = !isCutAtEnd;
    lines.append(line);
}

/// Each of the days in `most` lines; nothing when they do not find room.
QList<Line> cutAlike(Notes notes, std::size_t most, std::size_t room)
{
    QList<Line> lines;
    while (!notes.empty()) {
        const Notes day = firstDay(notes);
        cut(day, most, lines);
        notes = notes.subspan(day.size());
    }
    return std::size_t(lines.size()) <= room ? lines : QList<Line>();
}

} // namespace

QList<TodayModel::Line> TodayModel::fit(const QList<Note> &notes, QDate today, int room)
{
    QList<Line> lines;
    if (notes.isEmpty() || room < 1)
        return lines;
    Notes rest(notes);
    const auto lineCount = std::size_t(room);
    if (rest.front().note.date == today) {
        const Notes day = firstDay(rest);
        rest = rest.subspan(day.size());
        const std::size_t free = lineCount - std::min(lineCount, rest.size());
        const auto over = std::size_t(std::ranges::count_if(day, &Note::isOver));
        const std::size_t wanted = day.size() - over + (over > 0 ? 1 : 0);
        cut(day, std::max(free, std::min(wanted, (lineCount + 1) / 2)), lines);
    }
    const std::size_t left = lineCount - std::size_t(lines.size());
    for (std::size_t most = left; most >= 2; --most) {
        if (const QList<Line> days = cutAlike(rest, most, left); !days.isEmpty())
            return lines + days;
    }
    cut(rest, left, lines);
    return lines;
}

void TodayModel::show(const TodayNotes &notes, DateStyle style)
{
    m_notes = notes.notes();
    m_today = notes.today();
    m_style = style;
    build();
}

void TodayModel::setRoom(int lines)
{
    if (lines == m_room)
        return;
    m_room = lines;
    build();
}

void TodayModel::build()
{
    beginResetModel();
    m_lines = fit(m_notes, m_today, m_room);
    endResetModel();
}

QString TodayModel::text(const Line &line) const
{
    if (line.more == 0)
        return line.note.note.text;
    const QString count = QString::number(line.more);
    if (line.note.isOver)
        return count + u" earlier"_s;
    const QString text = u"and "_s + count + u" more"_s;
    return line.last == line.day ? text : text + u" until "_s + dayText(line.last);
}

bool TodayModel::hasTimes(int first, int count) const
{
    return std::ranges::any_of(m_lines.mid(first, count),
                               [](const Line &line) { return line.note.note.time.isValid(); });
}

QString TodayModel::dayText(QDate day) const
{
    if (day == m_today)
        return u"Today"_s;
    if (day == m_today.addDays(1))
        return u"Tomorrow"_s;
    return QLocale::c().dayName(day.dayOfWeek(), QLocale::ShortFormat) + u", "_s +
           Dates::shortText(day, m_style);
}

int TodayModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_lines.size());
}

QVariant TodayModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Line &line = m_lines[index.row()];
    const DayNote &note = line.note.note;
    const QString text = this->text(line);
    // A single date would be untrue of several days.
    const QString day = line.more > 0 && line.last != line.day ? u"Later"_s : dayText(line.day);
    const QString time = note.time.isValid() && note.timeText.isEmpty()
                             ? QLocale::c().toString(note.time, u"h:mm AP"_s)
                             : note.timeText;
    switch (role) {
    case Qt::DisplayRole:
        return text;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole: {
        QStringList parts{day, time, text, note.unsaidState(), note.source};
        parts.removeAll({});
        return parts.join(u", "_s);
    }
    case DayRole:
        return day;
    case TimeRole:
        return time;
    case IconRole:
        return line.more > 0 ? QString() : QString(DayNotes::signOf(line.note.note, line.note.function));
    case SourceRole:
        return note.source;
    case IsOverRole:
        return line.note.isOver;
    default:
        return {};
    }
}
