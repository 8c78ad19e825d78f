// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/costwords.h"

#include "cars/model/carnumbers.h"
#include "cars/model/carwords.h"
#include "cars/model/duewords.h"
#include "shell/core/dates.h"

#include <QLocale>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

QString grouped(double number, int decimals)
{
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(number, 'f', decimals);
}

QString oneDistance(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"mile"_s : u"km"_s;
}

QString oneAmount(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"gallon"_s : u"liter"_s;
}

} // namespace

QString CostWords::kind(CostKind kind)
{
    switch (kind) {
    case CostKind::Fuel:
        return u"Fuel"_s;
    case CostKind::Maintenance:
        return u"Maintenance"_s;
    case CostKind::Repairs:
        break;
    }
    return u"Repairs"_s;
}

QString CostWords::money(double cents)
{
    return grouped(cents / 100, 2);
}

QString CostWords::perDistance(const CostSums &sums, DistanceUnit unit)
{
    const std::optional<double> cents = sums.perDistance();
    return cents ? money(*cents) + u" a "_s + oneDistance(unit) : QString();
}

QString CostWords::perMonth(double cents, QDate today)
{
    return money(cents) + u" a month up to "_s + Dates::monthYear(today.addMonths(-1));
}

QStringList CostWords::headings(const QString &what, DistanceUnit unit)
{
    QStringList headings{what};
    for (const CostKind kind : costKinds)
        headings << CostWords::kind(kind);
    return headings << u"Together"_s << CarWords::miles(unit)
                    << (unit == DistanceUnit::Miles ? u"Per Mile"_s : u"Per Km."_s);
}

QStringList CostWords::row(const QString &what, const CostSums &sums)
{
    const auto paid = [](qint64 cents) { return cents != 0 ? money(double(cents)) : QString(); };
    QStringList cells{what};
    for (const CostKind kind : costKinds)
        cells << paid(sums.of(kind));
    const bool isDriven = sums.driven && *sums.driven > 0;
    return cells << paid(sums.total()) << (isDriven ? grouped(*sums.driven, 0) : QString())
                 << (isDriven && sums.total() != 0 ? money(*sums.perDistance()) : QString());
}

QString CostWords::year(const CarCosts::YearAgainstLast &both, DateStyle style, bool isBefore)
{
    const QString year = QString::number(both.year - (isBefore ? 1 : 0));
    const bool isWhole = both.until == QDate(both.year, 12, 31);
    return isWhole ? year : year + u", until "_s + Dates::shortText(both.until, style);
}

QString CostWords::wholeYear(int year)
{
    return u"%1, the whole year"_s.arg(year);
}

QString CostWords::difference(const CarCosts::YearAgainstLast &both)
{
    if (both.before.total() == 0)
        return {};
    const qint64 more = both.sums.total() - both.before.total();
    return (more > 0 ? u"+"_s : QString()) + money(double(more));
}

QStringList CostWords::summary(const FuelSums &sums, DistanceUnit unit)
{
    QStringList lines;
    if (sums.economy) {
        const bool isOne = CarNumbers::text(*sums.best, 1) == CarNumbers::text(*sums.worst, 1);
        lines << DueWords::economy(*sums.economy, unit) + u" on average"_s +
                     (isOne ? QString()
                            : QString(u", "_s + CarNumbers::text(*sums.worst, 1) + u" at worst, "_s +
                                      CarNumbers::text(*sums.best, 1) + u" at best"_s));
    }
    QStringList costs;
    if (sums.centsPerDistance)
        costs << money(*sums.centsPerDistance) + u" a "_s + oneDistance(unit);
    if (sums.centsPerFillUp)
        costs << money(*sums.centsPerFillUp) + u" a fill-up"_s;
    if (sums.centsPerAmount)
        costs << money(*sums.centsPerAmount) + u" a "_s + oneAmount(unit);
    if (!costs.isEmpty())
        lines << costs.join(u", "_s);
    if (sums.fillUps > 0)
        lines << grouped(sums.fillUps, 0) + (sums.fillUps == 1 ? u" fill-up: "_s : u" fill-ups: "_s) +
                     DueWords::distance(sums.driven, unit) + u", "_s + grouped(sums.used, 1) + u' ' +
                     CarWords::fuelAmount(unit).toLower() + u", "_s + money(double(sums.cents));
    return lines;
}

QString CostWords::whyNotCounted(FillUp::Kind kind)
{
    switch (kind) {
    case FillUp::Kind::Counted:
        return {};
    case FillUp::Kind::Partial:
        return u"A partial fill-up: it counts with the next one."_s;
    case FillUp::Kind::Missing:
        return u"A fill-up is missing before it: the previous reading does not follow, or the distance is too long."_s;
    case FillUp::Kind::Unlikely:
        return u"Less than half of what is usual: something is missing."_s;
    case FillUp::Kind::Incomplete:
        break;
    }
    return u"The distance or the amount is missing."_s;
}

QStringList CostWords::cells(const FuelRow &row, const FillUp &fillUp)
{
    QStringList cells;
    for (const auto column : fuelColumns)
        cells << row.*column;
    const auto fill = [&cells](qsizetype column, std::optional<double> number, int decimals) {
        if (cells[column].trimmed().isEmpty() && number)
            cells[column] = decimals == 0 ? CarNumbers::text(*number) : CarNumbers::text(*number, decimals);
    };
    fill(2, fillUp.reading, 0);
    fill(3, fillUp.driven, 0);
    fill(5, fillUp.economy, 1);
    return cells;
}
