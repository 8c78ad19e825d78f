// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/scheduleupdate.h"

#include "cars/model/carnumbers.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The words that tell one action from another, sorted: "Oil and filter change" is "Change Oil and Filter".
QStringList wordsOf(const QString &text)
{
    static const QStringList empty{u"and"_s, u"the"_s, u"of"_s, u"a"_s};
    QString plain = text.toLower();
    for (QChar &character : plain) {
        if (!character.isLetterOrNumber())
            character = u' ';
    }
    QStringList words;
    for (const QString &word : plain.split(u' ', Qt::SkipEmptyParts)) {
        if (!empty.contains(word))
            words.append(word);
    }
    words.sort();
    return words;
}

/// Whether what `action` has is older than a maintenance of `date` and `reading`, or is not known.
bool isOlder(const ScheduledAction &action, const HistoryRow &entry, DateStyle style)
{
    const auto date = CarNumbers::date(entry.date, style);
    const auto lastDate = CarNumbers::date(action.date, style);
    if (date && lastDate && *date != *lastDate)
        return *lastDate < *date;
    const auto reading = CarNumbers::number(entry.odometer);
    const auto lastReading = CarNumbers::number(action.odometer);
    if (reading && lastReading)
        return *lastReading < *reading;
    return (date && !lastDate) || (reading && !lastReading);
}

} // namespace

int ScheduleUpdate::actionOf(const QString &description, const VehicleSheet &sheet)
{
    const QStringList words = wordsOf(description);
    if (words.isEmpty())
        return -1;
    const auto found = std::ranges::find_if(
        sheet.actions, [&](const ScheduledAction &action) { return wordsOf(action.name) == words; });
    return found == sheet.actions.end() ? -1 : int(found - sheet.actions.begin());
}

std::optional<ScheduleUpdate> ScheduleUpdate::of(const HistoryRow &entry, const VehicleSheet &sheet,
                                                 DateStyle style)
{
    const int row = actionOf(entry.description, sheet);
    if (row < 0 || !isOlder(sheet.actions[std::size_t(row)], entry, style))
        return {};
    const ScheduledAction &before = sheet.actions[std::size_t(row)];
    ScheduledAction after = before;
    const auto take = [](QString &text, const QString &entered) {
        if (!entered.trimmed().isEmpty())
            text = entered;
    };
    // A reading of the time before would not belong to the new date, nor a date to the new reading.
    after.odometer = entry.odometer;
    after.date = entry.date;
    take(after.cost, entry.cost);
    return ScheduleUpdate{row, before, after};
}

QString ScheduleUpdate::question() const
{
    return u"\"%1\" is in the schedule. Is this the last time it was done?"_s.arg(after.name.trimmed());
}
