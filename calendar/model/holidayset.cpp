// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/holidayset.h"

#include "calendar/model/daterule.h"

#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How far beyond the days that are asked for the others are known: a day off can lie behind a row of
/// holidays.
constexpr int margin = 2 * DateRule::mostShift;

struct Found {
    QDate date;
    qsizetype line;
    bool isDayOff;
};

} // namespace

bool Holiday::isReadable() const
{
    return !isKept && DateRule::parse(rule).has_value();
}

QList<HolidayDay> HolidaySet::days(QDate from, QDate to) const
{
    if (!from.isValid() || !to.isValid())
        return {};
    QList<Found> found, weekends;
    QSet<QDate> taken;
    const QDate begin = from.addDays(-margin), end = to.addDays(margin);
    for (qsizetype line = 0; line < holidays.size(); ++line) {
        const auto rule = holidays[line].isKept ? std::nullopt : DateRule::parse(holidays[line].rule);
        if (!rule)
            continue;
        for (const auto &[date, isDayOff] : rule->ownDays(begin, end)) {
            found.append({date, line, isDayOff});
            taken.insert(date);
            if (rule->moving == DateRule::Moving::Next && DateRule::isWeekend(date))
                weekends.append({date, line, true});
        }
    }
    // The next weekday is only known when all the others are: two holidays of one weekend take two of them.
    std::ranges::stable_sort(weekends, {}, &Found::date);
    for (const Found &weekend : weekends) {
        const QDate date =
            DateRule::nextWeekday(weekend.date, [&](QDate day) { return taken.contains(day); });
        found.append({date, weekend.line, true});
        taken.insert(date);
    }
    std::ranges::stable_sort(found, {}, [](const Found &day) { return std::pair(day.date, day.line); });
    QList<HolidayDay> days;
    for (const Found &day : std::as_const(found)) {
        if (day.date >= from && day.date <= to)
            days.append({day.date, holidays[day.line].text + (day.isDayOff ? u" (observed)"_s : QString())});
    }
    return days;
}
