// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannertrash.h"

#include "planner/model/dayrecord.h"
#include "planner/model/recurrencerun.h"
#include "shell/core/calendardates.h"
#include "shell/core/dates.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView trashKind("Planner");

Trash::Piece piece(QDate date, PlannerDay day)
{
    day.mark = PlannerDay::savedMark;
    return {DayRecord::yearFileName(date.year()), DayRecord::number(date), plannerDayLayout.encode(day)};
}

/// The date of a record in the trash; invalid where it is none of the planner's.
QDate dateOf(const Trash::Piece &piece)
{
    static const QRegularExpression name(u"^ ([1-9]\\d{3})\\.Cal$"_s);
    const auto match = name.match(piece.file);
    const QDate date = match.hasMatch() ? DayRecord::date(piece.number, match.captured(1).toInt()) : QDate();
    return CalendarDates::has(date) && DayRecord::isSaved(piece.bytes) ? date : QDate();
}

QString words(const QString &time, const QString &text)
{
    return QString(time + u' ' + text).trimmed();
}

/// Puts the rows of `lost` into `day`.
DateResult insertAll(PlannerDay &day, const PlannerDay &lost)
{
    DateResult result = DateResult::Exists;
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (lost.isRowEmpty(row))
            continue;
        const DateResult one = insertAppointment(day, Appointment::ofRow(lost.times[row], lost.texts[row]));
        if (one == DateResult::Full)
            return one;
        if (one == DateResult::Made)
            result = one;
    }
    return result;
}

} // namespace

std::optional<Trash::Item> PlannerTrash::ofDay(const DataFolder &folder, QDate date, DateStyle style,
                                               const QDateTime &now)
{
    const PlannerDay day = PlannerFiles(folder).peek(date);
    if (day.isEmpty())
        return {};
    QStringList entries;
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (!day.isRowEmpty(row))
            entries << words(day.times[row], day.texts[row]);
    }
    return Trash::Item{
        trashKind, now, Dates::statusText(date, style) + u": "_s + entries.join(u", "_s), {piece(date, day)}};
}

Trash::Item PlannerTrash::ofRemoval(const Appointment &appointment, const std::vector<QDate> &dates,
                                    const QDateTime &now)
{
    PlannerDay lost;
    lost.times[0] = appointment.time;
    lost.texts[0] = appointment.text;
    Trash::Item item{trashKind,
                     now,
                     words(appointment.time, appointment.text) +
                         (dates.size() == 1 ? u", on one day"_s : u", on %1 days"_s.arg(dates.size())),
                     {}};
    for (const QDate date : dates)
        item.pieces.push_back(piece(date, lost));
    return item;
}

std::vector<Trash::Item> PlannerTrash::items(const DataFolder &folder, const QDateTime &now)
{
    std::vector<Trash::Item> items = Trash(folder).items(trashKind, now);
    std::erase_if(items, [](const Trash::Item &item) {
        return std::ranges::none_of(item.pieces,
                                    [](const Trash::Piece &piece) { return dateOf(piece).isValid(); });
    });
    return items;
}

PlannerTrash::Result PlannerTrash::bringBack(const DataFolder &folder, const Trash::Item &item,
                                             UntimedPlacement placement)
{
    Result result;
    Trash::Item rest = item;
    rest.pieces.clear();
    const PlannerFiles files(folder);
    for (const Trash::Piece &piece : item.pieces) {
        const QDate date = dateOf(piece);
        if (!date.isValid())
            continue;
        if (!files.isReadable(date.year()))
            return result; // what cannot be read is not empty
        PlannerDay day = files.peek(date);
        const DateResult inserted = insertAll(day, plannerDayLayout.decode(piece.bytes));
        if (inserted == DateResult::Full)
            rest.pieces.push_back(piece);
        if (inserted != DateResult::Made)
            continue;
        files.add(date, inTimeOrder(day, placement), result.change);
        if (!result.firstDate.isValid())
            result.firstDate = date;
    }
    result.full = int(rest.pieces.size());
    result.change.bringBack(item);
    if (!rest.pieces.empty())
        result.change.throwAway(rest);
    result.isDone = result.change.commit(folder);
    return result;
}
