// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/duewords.h"

#include "cars/model/carnumbers.h"
#include "shell/core/dates.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

using State = CarNeed::State;
using Kind = CarNeed::Kind;

constexpr qint64 nearDays = 180; ///< within which a date needs no year
/// From so many days on months are told.
constexpr qint64 daysAsMonths = 60;

struct ShortName {
    QLatin1StringView name;
    QLatin1StringView shorter;
};
/// Of the actions that a new car begins with.
constexpr std::array shortNames{ShortName{"Change Oil and Filter"_L1, "oil change"_L1},
                                ShortName{"Rotate Tires"_L1, "tires"_L1},
                                ShortName{"Inspect Brake Linings"_L1, "brakes"_L1},
                                ShortName{"Replace Air Filter"_L1, "air filter"_L1},
                                ShortName{"Replace Coolant"_L1, "coolant"_L1},
                                ShortName{"Replace Spark Plugs"_L1, "spark plugs"_L1},
                                ShortName{"Replace Timing Belt"_L1, "timing belt"_L1}};

constexpr std::array numbers{"No"_L1,    "One"_L1,   "Two"_L1,  "Three"_L1, "Four"_L1,   "Five"_L1,  "Six"_L1,
                             "Seven"_L1, "Eight"_L1, "Nine"_L1, "Ten"_L1,   "Eleven"_L1, "Twelve"_L1};

QString inWords(qsizetype count)
{
    return count < qsizetype(numbers.size()) ? QString(numbers[std::size_t(count)]) : QString::number(count);
}

QString grouped(double number)
{
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(std::round(number), 'f', 0);
}

QString unitName(double distance, DistanceUnit unit)
{
    if (unit == DistanceUnit::Kilometers)
        return u" km"_s;
    return std::round(distance) == 1 ? u" mile"_s : u" miles"_s;
}

/// "Since Sep 2" is exact for a day that was written down, a guess for one that was driven up to.
QString about(const CarNeed &need)
{
    return need.limit == CarNeed::Limit::Distance ? u"about "_s : QString();
}

QString counted(qint64 count, const QString &what)
{
    return QString::number(count) + u' ' + what + (std::abs(count) == 1 ? u""_s : u"s"_s);
}

enum class Length { Whole, Short };

QString titleIn(const QList<CarNeed> &needs, Length length)
{
    const qsizetype due = std::ranges::count_if(needs, &CarNeed::isUrgent);
    const qsizetype overdue = std::ranges::count(needs, State::Overdue, &CarNeed::state);
    if (due == 0)
        return u"Nothing is due"_s;
    const QString verb = length == Length::Short ? u" "_s : due == 1 ? u" is "_s : u" are "_s;
    const QString things = inWords(due) + (due == 1 ? u" thing"_s : u" things"_s) + verb;
    if (overdue == due)
        return things + u"overdue"_s;
    if (overdue == 0)
        return things + u"due"_s;
    const QString of = length == Length::Short ? u" overdue"_s : u" of them overdue"_s;
    return things + u"due, "_s + inWords(overdue).toLower() + of;
}

} // namespace

QString DueWords::title(const QList<CarNeed> &needs)
{
    return titleIn(needs, Length::Whole);
}

QString DueWords::shortTitle(const QList<CarNeed> &needs)
{
    return titleIn(needs, Length::Short);
}

QString DueWords::name(const CarNeed &need)
{
    return need.name.isEmpty() ? u"Action "_s + QString::number(need.row + 1) : need.name;
}

QString DueWords::shortName(const CarNeed &need)
{
    const auto found = std::ranges::find_if(shortNames, [&](const ShortName &names) {
        return need.name.compare(names.name, Qt::CaseInsensitive) == 0;
    });
    if (found != shortNames.end())
        return found->shorter;
    QString name = DueWords::name(need);
    // "ABS sensor" is no word with a capital.
    if (name.size() > 1 && !name[1].isUpper())
        name[0] = name[0].toLower();
    return name;
}

QString DueWords::state(const CarNeed &need)
{
    return need.state == State::Overdue ? u"Overdue"_s : need.state == State::Due ? u"Due"_s : QString();
}

QString DueWords::when(const CarNeed &need, DistanceUnit unit, DateStyle style, QDate today)
{
    if (!advice(need, unit).isEmpty() && need.state < State::Ahead)
        return need.state == State::NoInterval ? u"No interval"_s : u"Not known"_s;
    const QDate date = need.date();
    const bool isOverdue = need.state == State::Overdue;
    if (need.isReadingOld && need.limit == CarNeed::Limit::Distance && !isOverdue)
        return u"Due about now"_s;
    if (!date.isValid())
        return isOverdue ? u"Overdue"_s : u"Due at "_s + distance(need.reading, unit);
    const QString words = about(need) + day(date, style, today);
    if (need.kind == Kind::Action)
        return (isOverdue ? u"Overdue since "_s : u"Due "_s) + words;
    return (isOverdue ? u"Ran out "_s : u"Runs out "_s) + words;
}

QString DueWords::howFar(const CarNeed &need, DistanceUnit unit)
{
    if (!need.remaining)
        return {};
    return distance(std::abs(*need.remaining), unit) + (*need.remaining < 0 ? u" over"_s : u" left"_s);
}

QString DueWords::advice(const CarNeed &need, DistanceUnit unit)
{
    const bool isMiles = unit == DistanceUnit::Miles;
    switch (need.state) {
    case State::NoInterval:
        return isMiles ? u"Enter after how many miles or months it comes again."_s
                       : u"Enter after how many kilometers or months it comes again."_s;
    case State::NoLastTime:
        return u"Enter when it was done last."_s;
    default:
        return need.isReadingOld ? u"Look at the odometer: the distance is probably driven."_s : QString();
    }
}

QString DueWords::remainingDistance(const CarNeed &need)
{
    return need.remaining ? CarNumbers::text(std::round(*need.remaining), 0) : QString();
}

QString DueWords::remainingTime(const CarNeed &need, QDate today)
{
    if (!need.byTime.isValid())
        return {};
    const qint64 days = today.daysTo(need.byTime);
    if (days < daysAsMonths)
        return counted(days, u"day"_s);
    int months = int(days / 28);
    while (today.addMonths(months) > need.byTime)
        --months;
    return counted(months, u"month"_s);
}

QString DueWords::distance(double distance, DistanceUnit unit)
{
    return grouped(distance) + unitName(distance, unit);
}

QString DueWords::economy(double economy, DistanceUnit unit)
{
    return CarNumbers::text(economy, 1) +
           (unit == DistanceUnit::Miles ? u" miles per gallon"_s : u" km per liter"_s);
}

QString DueWords::rate(const DrivingLog &log, DistanceUnit unit, DateStyle style, QDate today)
{
    if (!log.perDay())
        return {};
    const QString since = u" since "_s + day(log.recent().first().date, style, today);
    if (*log.perDay() <= 0)
        return u"Not driven"_s + since;
    if (*log.perDay() < 1)
        return DueWords::distance(*log.perDay() * 30, unit) + u" a month"_s + since;
    return DueWords::distance(*log.perDay(), unit) + u" a day"_s + since;
}

QString DueWords::day(QDate date, DateStyle style, QDate today)
{
    return std::abs(today.daysTo(date)) <= nearDays ? Dates::shortText(date, style)
                                                    : Dates::shortWithYear(date, style);
}
