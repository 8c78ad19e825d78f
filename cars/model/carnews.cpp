// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carnews.h"

#include "cars/model/carfiles.h"
#include "cars/model/carneeds.h"
#include "cars/model/carnumbers.h"
#include "cars/model/carplace.h"
#include "cars/model/duewords.h"
#include "cars/model/fuelfigures.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Files of cars that are made while the program runs are followed too.
constexpr int watchedSlots = 12;

QList<CarNeed> needsOf(const CarRecord &car, DateStyle style, QDate today)
{
    return CarNeeds::of(car, CarNeeds::drivingLog(car, style, today), style, today);
}

/// "Family car: oil change overdue"; where there is no room for the name "Oil change overdue".
LiveLine lineOf(const Vehicle &vehicle, const QString &words, LiveLine::Urgency urgency,
                const QString &shorter = {})
{
    LiveLine line{.text = vehicle.name + u": "_s + words,
                  .urgency = urgency,
                  .sentence = {},
                  .nameLength = vehicle.name.size()};
    QString alone = shorter.isEmpty() ? words : shorter;
    alone[0] = alone[0].toUpper();
    line.shorter = {alone};
    return line;
}

LiveLine lineOf(const CarRecord &car, const CarNeed &need, DateStyle style, QDate today)
{
    const QString name = DueWords::shortName(need);
    const bool isAction = need.kind == CarNeed::Kind::Action;
    if (need.state == CarNeed::State::Overdue)
        return lineOf(car.vehicle, name + (isAction ? u" overdue"_s : u" ran out"_s), LiveLine::Overdue);
    const QDate date = need.date();
    const QString begin = isAction ? name : QString(name + u" runs out"_s);
    if (need.isReadingOld && need.limit == CarNeed::Limit::Distance)
        return lineOf(car.vehicle, begin + u" due"_s, LiveLine::Due);
    if (!date.isValid())
        return lineOf(car.vehicle, begin + u" at "_s + DueWords::distance(need.reading, car.sheet.unit),
                      LiveLine::Due);
    const QString on = isAction ? u" on "_s : u" "_s;
    return lineOf(car.vehicle, begin + (date == today ? u" today"_s : on + DueWords::day(date, style, today)),
                  LiveLine::Due);
}

/// Of the car that was filled up last.
std::optional<LiveLine> consumption(const QList<CarRecord> &cars, DateStyle style)
{
    std::optional<LiveLine> line;
    QDate newest;
    for (const CarRecord &car : cars) {
        const FuelFigures figures(car.fuel, style);
        const int row = figures.newest();
        if (row < 0 || (line && figures.fillUps()[row].date <= newest))
            continue;
        newest = figures.fillUps()[row].date;
        const double economy = *figures.fillUps()[row].economy;
        const bool isMiles = car.sheet.unit == DistanceUnit::Miles;
        line = lineOf(car.vehicle, DueWords::economy(economy, car.sheet.unit), LiveLine::Plain,
                      CarNumbers::text(economy, 1) + (isMiles ? u" mpg"_s : u" km/l"_s));
    }
    return line;
}

/// What is said of a need at a day: "oil change overdue since Sep 2", "insurance runs out".
QString noteWords(const CarNeed &need, bool isMoved, DistanceUnit unit, DateStyle style, QDate today)
{
    const QString name = DueWords::shortName(need);
    const bool isOverdue = need.state == CarNeed::State::Overdue;
    if (need.kind != CarNeed::Kind::Action && !isMoved)
        return name + (isOverdue ? u" ran out"_s : u" runs out"_s);
    if (isOverdue) {
        const bool hasDay = isMoved && need.date().isValid();
        const QString words = need.kind == CarNeed::Kind::Action ? u" overdue"_s : u" ran out"_s;
        const QString since = need.kind == CarNeed::Kind::Action ? u" since "_s : u" "_s;
        return name + words + (hasDay ? since + DueWords::day(need.date(), style, today) : QString());
    }
    if (need.limit == CarNeed::Limit::Distance)
        return name + u" due at about "_s + DueWords::distance(need.reading, unit);
    return name + u" due"_s;
}

} // namespace

std::optional<LiveLine> CarNews::liveLine(const DataFolder &folder, DateStyle style, QDate today)
{
    const QList<CarRecord> cars = CarFiles(folder).all();
    std::optional<LiveLine> line;
    CarNeed first;
    for (const CarRecord &car : cars) {
        const QList<CarNeed> needs = CarNeeds::byUrgency(needsOf(car, style, today));
        if (needs.isEmpty() || !needs.first().isUrgent())
            continue;
        if (line && CarNeeds::byUrgency({first, needs.first()}).first() == first)
            continue;
        first = needs.first();
        line = lineOf(car, first, style, today);
    }
    return line ? line : consumption(cars, style);
}

QList<DayNote> CarNews::dayNotes(const DataFolder &folder, DateStyle style, QDate from, QDate to, QDate today)
{
    QList<DayNote> notes;
    for (const CarRecord &car : CarFiles(folder).all()) {
        for (const CarNeed &need : needsOf(car, style, today)) {
            if (need.state < CarNeed::State::Ahead)
                continue;
            const bool isOverdue = need.state == CarNeed::State::Overdue;
            const QDate date = need.date();
            const bool isMoved = isOverdue && (!date.isValid() || (date < from && today >= from));
            const QDate shown = isMoved ? today : date;
            if (!shown.isValid() || shown < from || shown > to)
                continue;
            notes.append(
                {.date = shown,
                 .text = car.vehicle.name + u": "_s + noteWords(need, isMoved, car.sheet.unit, style, today),
                 .source = u"Car Log"_s,
                 .kind = isOverdue ? NoteKind::Overdue : NoteKind::Due,
                 .place = CarPlace{.slot = car.vehicle.slot, .row = need.row}.place(date),
                 .nameLength = car.vehicle.name.size()});
        }
    }
    std::ranges::stable_sort(notes, {}, &DayNote::date);
    return notes;
}

QStringList CarNews::liveFiles(const DataFolder &folder)
{
    QStringList files{VehicleList::fileName()};
    int most = watchedSlots;
    for (const Vehicle &vehicle : CarFiles(folder).vehicles())
        most = std::max(most, vehicle.slot);
    for (int slot = 1; slot <= most; ++slot) {
        for (const CarPart part : carParts)
            files << VehicleFiles::fileName(part, slot);
    }
    return files;
}
