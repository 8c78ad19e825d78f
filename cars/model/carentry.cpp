// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carentry.h"

#include "cars/model/carnumbers.h"
#include "cars/model/messages.h"
#include "shell/core/dates.h"

CarEntry CarEntry::odometer(const QString &typed, const QString &before, const VehicleSheet &sheet)
{
    const auto reading = CarNumbers::number(typed);
    const auto current = CarNumbers::number(sheet.field(VehicleSheet::Odometer));
    if (reading && current && *reading > *current)
        return {before, CarMessages::aboveCurrentReading(sheet.unit)};
    return {typed.trimmed(), {}};
}

CarEntry CarEntry::date(const QString &typed, const QString &before, DateStyle style, QDate today)
{
    if (typed.trimmed().isEmpty())
        return {};
    const std::optional<QDate> date = CarNumbers::date(typed, style);
    if (!date)
        return {before, CarMessages::invalidDate()};
    if (*date > today)
        return {before, CarMessages::dateToCome()};
    return {Dates::numbers(*date, style), {}};
}
