// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/dayorder.h"

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The number that the first two characters of a time start with; 0 when there is none.
int leadingHour(QStringView time)
{
    int hour = 0;
    for (const QChar c : AnsiText::trimmedBlanks(time.left(2))) {
        if (c < u'0' || c > u'9')
            break;
        hour = 10 * hour + (c.unicode() - u'0');
    }
    return hour;
}

/// Two letters that put the groups into order: no AM/PM, then AM, then PM, each with 12, 1 to 9, 10 and 11
/// told apart.
QLatin1StringView groupPrefix(QStringView time, UntimedPlacement placement)
{
    const int hour = leadingHour(time);
    const auto choose = [hour](const char *twelve, const char *late, const char *early) {
        return QLatin1StringView(hour == 12 ? twelve : hour >= 10 ? late : early);
    };
    if (time.endsWith("AM"_L1, Qt::CaseInsensitive))
        return choose("ad", "am", "ae");
    if (time.endsWith("PM"_L1, Qt::CaseInsensitive))
        return choose("bb", "zz", "pm");
    if (placement == UntimedPlacement::First)
        return choose("ac", "ab", "aa");
    // Behind "zz", the last of the timed groups.
    return choose("zzzc", "zzzb", "zzza");
}

/// A filled row with what it is sorted by.
struct Entry {
    QString key; ///< upper case, for the comparison
    QString time;
    QString text;
};

} // namespace

PlannerDay inTimeOrder(const PlannerDay &day, UntimedPlacement placement)
{
    std::vector<Entry> entries;
    entries.reserve(PlannerDay::rowCount);
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (day.isRowEmpty(row))
            continue;
        const QString time = AnsiText::trimmedBlanks(day.times[row]).toString();
        const QString text = AnsiText::trimmedBlanks(day.texts[row]).toString();
        const QString key = QString(groupPrefix(time, placement)) + time + "zzz"_L1 + text;
        entries.push_back({key.toUpper(), time, text});
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry &one, const Entry &other) { return one.key < other.key; });

    PlannerDay ordered;
    ordered.mark = day.mark;
    for (std::size_t row = 0; row < entries.size(); ++row) {
        ordered.times[row] = entries[row].time;
        ordered.texts[row] = entries[row].text;
    }
    return ordered;
}
