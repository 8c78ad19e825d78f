// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightentry.h"

#include "weight/model/messages.h"
#include "weight/model/weightdates.h"
#include "weight/model/weightnumbers.h"

#include <algorithm>

namespace {

WeightEntry dateEntry(const QString &typed, const QString &before, WeightEntry::DateChecker checker,
                      QDate today, QString (*form)(QDate))
{
    if (typed.trimmed().isEmpty())
        return {};
    const QDate date = WeightDates::date(typed);
    if (!date.isValid())
        return {before, WeightMessages::invalidDate()};
    if (checker == WeightEntry::DateChecker::On && date > today)
        return {before, WeightMessages::dateToCome()};
    return {form(date), {}};
}

} // namespace

WeightEntry WeightEntry::tableDate(const QString &typed, const QString &before, DateChecker checker,
                                   QDate today)
{
    return dateEntry(typed, before, checker, today, WeightDates::tableText);
}

WeightEntry WeightEntry::sheetDate(const QString &typed, const QString &before, DateChecker checker,
                                   QDate today)
{
    return dateEntry(typed, before, checker, today, WeightDates::longText);
}

WeightEntry WeightEntry::weight(const QString &typed, const QString &before)
{
    const QString text = typed.trimmed();
    if (text.isEmpty())
        return {};
    const std::optional<double> number = WeightNumbers::typed(text);
    if (!number)
        return {before, WeightMessages::invalidWeight()};
    return {WeightNumbers::text(*number), {}};
}
