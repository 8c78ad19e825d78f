// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerday.h"

#include <QStringList>

#include <vector>

/// The entries of a day as lines to be shown in a place of a certain size: the rows that hold anything, in
/// their order, freed of blanks. Notes of other functions about the day may stand before them.
class DayLines
{
public:
    explicit DayLines(const PlannerDay &day, const QStringList &notes = {});

    int count() const { return int(m_lines.size()); }
    const QString &time(int entry) const { return m_lines[std::size_t(entry)].time; }
    const QString &text(int entry) const { return m_lines[std::size_t(entry)].text; }
    /// "9:30 AM Dentist".
    QString joined(int entry) const;

    /// Whether the time stands in a column of its own or before the text.
    enum Style { InColumns, Joined };

    /// About how many lines, wide enough for `characters` letters, the entries take.
    int lineCount(int characters, Style style = InColumns) const;

    /// How many of `capacity` lines each entry gets: one each first, then what their lengths ask for. When
    /// there are more entries than lines, the last line is left for telling how many are missing.
    std::vector<int> share(int characters, int capacity, Style style = InColumns) const;

    /// The lines of the first entries that `capacity` lines hold uncut; when those are not all, the last line
    /// is left for telling how many are missing.
    std::vector<int> uncut(int characters, int capacity, Style style = InColumns) const;

private:
    struct Line {
        QString time;
        QString text;
    };
    int wanted(int entry, int characters, Style style) const;

    std::vector<Line> m_lines;
};
