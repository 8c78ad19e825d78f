#include "planner/daylines.h"

#include <QList>

#include <algorithm>

DayLines::DayLines(const PlannerDay &day)
{
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (!day.isRowEmpty(row))
            m_lines.push_back({AnsiText::trimmedBlanks(day.times[row]).toString(),
                               AnsiText::trimmedBlanks(day.texts[row]).toString()});
    }
}

QString DayLines::joined(int entry) const
{
    const Line &line = m_lines[std::size_t(entry)];
    if (line.time.isEmpty() || line.text.isEmpty())
        return line.time + line.text;
    return line.time + u' ' + line.text;
}

/// Lines that the text takes when it is broken between its words, and within those that are longer than a
/// line.
int DayLines::wanted(int entry, int characters, Style style) const
{
    const qsizetype perLine = std::max(1, characters);
    const QString whole = style == Joined ? joined(entry) : text(entry);
    int lines = 1;
    qsizetype used = 0;
    for (const QStringView word : QStringView(whole).split(u' ', Qt::SkipEmptyParts)) {
        if (used > 0 && used + 1 + word.size() <= perLine) {
            used += 1 + word.size();
            continue;
        }
        lines += (used > 0 ? 1 : 0) + int((word.size() - 1) / perLine);
        used = (word.size() - 1) % perLine + 1;
    }
    return lines;
}

int DayLines::lineCount(int characters, Style style) const
{
    int lines = 0;
    for (int entry = 0; entry < count(); ++entry)
        lines += wanted(entry, characters, style);
    return lines;
}

std::vector<int> DayLines::share(int characters, int capacity, Style style) const
{
    const int shown = count() <= capacity ? count() : std::max(0, capacity - 1);
    std::vector<int> lines(std::size_t(shown), 1);
    int free = count() <= capacity ? capacity - shown : 0;
    for (int entry = 0; entry < shown; ++entry) {
        const int more = std::min(free, wanted(entry, characters, style) - 1);
        lines[std::size_t(entry)] += more;
        free -= more;
    }
    return lines;
}
