// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarnews.h"

#include "calendar/model/calendarfiles.h"
#include "calendar/model/calendarpages.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// From then on people buy calendars.
constexpr int firstMonthForNext = 11;

int pageCount(const CalendarHead &head)
{
    WallCalendar calendar;
    calendar.from = head.from;
    calendar.months = head.months;
    calendar.look.layout = head.layout;
    return CalendarPages::sheetCount(calendar);
}

bool hasDayOf(const CalendarHead &head, int year)
{
    return head.from.year() <= year && head.lastDay().year() >= year;
}

} // namespace

std::optional<LiveLine> CalendarNews::liveLine(const DataFolder &folder, QDate today)
{
    QList<CalendarHead> heads = CalendarFiles::heads(folder);
    heads.removeIf([](const CalendarHead &head) { return !head.from.isValid() || head.months == 0; });
    const int next = today.year() + 1;
    const auto isOfNext = [next](const CalendarHead &head) { return hasDayOf(head, next); };
    if (today.month() >= firstMonthForNext && std::ranges::none_of(heads, isOfNext))
        return LiveLine{.text = u"No calendar for %1 yet"_s.arg(next), .sentence = {}};
    heads.removeIf([today](const CalendarHead &head) { return head.lastDay() < today; });
    if (heads.isEmpty())
        return {};
    // One that holds today began before all that come.
    const auto first = [today](const CalendarHead &head) { return std::max(head.from, today); };
    const CalendarHead &told = *std::ranges::min_element(heads, {}, first);
    const int pages = pageCount(told);
    const QString count = pages == 1 ? u"1 page"_s : u"%1 pages"_s.arg(pages);
    return LiveLine{
        .text = QString(told.title + u", "_s + count), .sentence = {}, .nameLength = told.title.size()};
}
