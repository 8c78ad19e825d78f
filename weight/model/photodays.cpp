// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/photodays.h"

#include "shell/core/dates.h"
#include "weight/model/weightdates.h"
#include "weight/model/weightnumbers.h"
#include "weight/model/weightwords.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 nearest = 7;

PhotoDays::Day dayOf(const QString &date, const WeightSeries &byDay)
{
    PhotoDays::Day day{WeightDates::date(date), {}};
    if (!day.date.isValid() || byDay.isEmpty())
        return day;
    const auto away = [&day](const DayWeight &one) { return std::abs(day.date.daysTo(one.date)); };
    const auto found = std::ranges::min_element(byDay, {}, away);
    if (away(*found) <= nearest)
        day.weight = found->weight;
    return day;
}

} // namespace

PhotoDays PhotoDays::of(const WeightSheet &sheet)
{
    const WeightSeries byDay = WeightTrend::byDay(sheet.weighIns);
    return {dayOf(sheet.field(WeightSheet::BeginningPhotoDate), byDay),
            dayOf(sheet.field(WeightSheet::CurrentPhotoDate), byDay)};
}

QString PhotoDays::text(const Day &day, DateStyle style)
{
    if (!day.date.isValid())
        return {};
    const QString date = Dates::shortWithYear(day.date, style);
    return day.weight ? QString(date + u": "_s + WeightWords::weight(*day.weight)) : date;
}

QString PhotoDays::between() const
{
    if (!then.date.isValid() || !now.date.isValid())
        return {};
    const qint64 days = then.date.daysTo(now.date);
    const QString text = days == 1 ? u"1 day"_s : QString::number(days) + u" days"_s;
    return then.weight && now.weight
               ? QString(text + u", "_s + WeightNumbers::difference(*now.weight - *then.weight))
               : text;
}
