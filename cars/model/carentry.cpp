// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carentry.h"

#include "cars/model/carnumbers.h"
#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "shell/core/dates.h"

namespace {

constexpr double greatestReading = 9'999'999;
/// A reading that goes up tenfold was typed into another one, unless the car is new.
constexpr double leastToCompare = 1000;
constexpr double tooFar = 10;

} // namespace

CarEntry CarEntry::number(const QString &typed, const QString &before)
{
    if (typed.trimmed().isEmpty())
        return {};
    QString plain = CarNumbers::plain(typed);
    if (plain.isEmpty())
        return {before, {}, CarLines::noNumber(typed.trimmed())};
    return {plain, {}};
}

CarEntry CarEntry::money(const QString &typed, const QString &before)
{
    CarEntry entry = number(typed, before);
    if (const auto cents = CarNumbers::cents(entry.text); cents && !entry.isRefused())
        entry.text = CarNumbers::costText(*cents);
    return entry;
}

CarEntry CarEntry::odometer(const QString &typed, const QString &before, const VehicleSheet &sheet)
{
    CarEntry entry = number(typed, before);
    const auto reading = CarNumbers::number(entry.text);
    const auto current = CarNumbers::number(sheet.field(VehicleSheet::Odometer));
    if (!entry.isRefused() && reading && current && *reading > *current)
        return {before, CarMessages::aboveCurrentReading(sheet.unit)};
    return entry;
}

CarEntry CarEntry::reading(const QString &typed, const QString &before, const VehicleSheet &sheet)
{
    CarEntry entry = currentReading(typed, before);
    const auto reading = CarNumbers::number(entry.text);
    const auto current = CarNumbers::number(sheet.field(VehicleSheet::Odometer));
    if (!entry.isRefused() && reading && current && *current >= leastToCompare &&
        *reading >= tooFar * *current)
        return {before, {}, CarLines::tooFar(*reading, *current)};
    return entry;
}

CarEntry CarEntry::currentReading(const QString &typed, const QString &before)
{
    CarEntry entry = number(typed, before);
    const auto reading = CarNumbers::number(entry.text);
    if (!entry.isRefused() && reading && *reading > greatestReading)
        return {before, {}, CarLines::beyondOdometers(*reading)};
    return entry;
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
