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

/// No household has more; files that are not there cost nothing.
constexpr int watchedSlots = 24;
constexpr qsizetype mostNames = 3; ///< of what is overdue, in one note

QList<CarNeed> needsOf(const CarRecord &car, DateStyle style, QDate today)
{
    return CarNeeds::of(car, CarNeeds::drivingLog(car, style, today), style, today);
}

/// "Family car: oil change overdue".
LiveLine lineOf(const Vehicle &vehicle, const QString &words, LiveLine::Urgency urgency)
{
    return {.text = vehicle.name + u": "_s + words,
            .urgency = urgency,
            .sentence = {},
            .nameLength = vehicle.name.size()};
}

/// The line of an only car can do without its name: "Oil change overdue".
LiveLine withoutName(LiveLine line)
{
    if (line.urgency != LiveLine::Plain)
        line.shorter.clear(); // which says less than the words alone
    const QStringList forms = QStringList(line.text) + line.shorter;
    QString words = forms.last().sliced(line.nameLength + 2);
    words[0] = words[0].toUpper();
    line.shorter.append(words);
    return line;
}

LiveLine lineOf(const CarRecord &car, const CarNeed &need, DateStyle style, QDate today)
{
    const QString name = DueWords::shortName(need);
    const bool isAction = need.kind == CarNeed::Kind::Action;
    if (need.state == CarNeed::State::Overdue) {
        LiveLine line =
            lineOf(car.vehicle, name + (isAction ? u" overdue"_s : u" ran out"_s), LiveLine::Overdue);
        if (isAction) // the sign before it says the rest
            line.shorter = {car.vehicle.name + u": "_s + name, car.vehicle.name + u" overdue"_s};
        return line;
    }
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
        line = lineOf(car.vehicle, DueWords::economy(economy, car.sheet.unit), LiveLine::Plain);
        line->shorter = {car.vehicle.name + u": "_s + CarNumbers::text(economy, 1) +
                         (isMiles ? u" mpg"_s : u" km/l"_s)};
    }
    return line;
}

/// What is said of one car on some days.
class CarNotes
{
public:
    CarNotes(const CarRecord &car, DateStyle style, QDate today)
        : m_car(car)
        , m_style(style)
        , m_today(today)
    {}

    void add(QDate from, QDate to, QList<DayNote> &notes) const
    {
        QList<CarNeed> moved; // to today
        for (const CarNeed &need : CarNeeds::byUrgency(needsOf(m_car, m_style, m_today))) {
            const QDate date = need.date();
            if (need.state == CarNeed::State::Overdue && (!date.isValid() || date < from))
                moved.append(need);
            else if (need.state >= CarNeed::State::Ahead && date >= from && date <= to)
                notes.append(note(date, words(need), need));
        }
        if (moved.isEmpty() || m_today < from || m_today > to)
            return;
        notes.append(
            note(m_today, moved.size() == 1 ? sinceWhen(moved.first()) : together(moved), moved.first()));
        if (moved.size() > 1)
            notes.last().place = CarPlace{.slot = m_car.vehicle.slot}.place();
    }

private:
    DayNote note(QDate day, const QString &words, const CarNeed &need) const
    {
        return {.date = day,
                .text = m_car.vehicle.name + u": "_s + words,
                .source = u"Car Log"_s,
                .kind = need.state == CarNeed::State::Overdue ? NoteKind::Overdue : NoteKind::Due,
                .place = CarPlace{.slot = m_car.vehicle.slot, .row = need.row}.place(need.date()),
                .nameLength = m_car.vehicle.name.size()};
    }

    /// "coolant due at about 10,500 miles", "insurance runs out".
    QString words(const CarNeed &need) const
    {
        const QString name = DueWords::shortName(need);
        const bool isOverdue = need.state == CarNeed::State::Overdue;
        if (need.kind != CarNeed::Kind::Action)
            return name + (isOverdue ? u" ran out"_s : u" runs out"_s);
        if (isOverdue)
            return name + u" overdue"_s;
        if (need.limit == CarNeed::Limit::Distance)
            return name + u" due at about "_s + DueWords::distance(need.reading, m_car.sheet.unit);
        return name + u" due"_s;
    }

    /// "oil change overdue since Sep 2", "insurance ran out Nov 21".
    QString sinceWhen(const CarNeed &need) const
    {
        if (!need.date().isValid())
            return words(need);
        const QString since = need.kind == CarNeed::Kind::Action ? u" since "_s : u" "_s;
        return words(need) + since + DueWords::day(need.date(), m_style, m_today);
    }

    /// "oil change, tires overdue".
    static QString together(const QList<CarNeed> &needs)
    {
        QStringList names;
        for (const CarNeed &need : needs.first(std::min(needs.size(), mostNames)))
            names << DueWords::shortName(need);
        if (needs.size() > mostNames)
            names << QString::number(needs.size() - mostNames) + u" more"_s;
        return names.join(u", "_s) + u" overdue"_s;
    }

    const CarRecord &m_car;
    DateStyle m_style;
    QDate m_today;
};

} // namespace

std::optional<LiveLine> CarNews::liveLine(const DataFolder &folder, DateStyle style, QDate today)
{
    const QList<CarRecord> cars = CarFiles(folder, style).all();
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
    if (!line)
        line = consumption(cars, style);
    return line && cars.size() == 1 ? withoutName(*line) : line;
}

QList<DayNote> CarNews::dayNotes(const DataFolder &folder, DateStyle style, QDate from, QDate to, QDate today)
{
    QList<DayNote> notes;
    for (const CarRecord &car : CarFiles(folder, style).all())
        CarNotes(car, style, today).add(from, to, notes);
    std::ranges::stable_sort(notes, {}, &DayNote::date);
    return notes;
}

QStringList CarNews::liveFiles()
{
    QStringList files{VehicleList::fileName()};
    for (int slot = 1; slot <= watchedSlots; ++slot) {
        for (const CarPart part : carParts)
            files << VehicleFiles::fileName(part, slot);
    }
    return files;
}
