// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carcsv.h"

#include "cars/model/carrows.h"
#include "cars/model/carwords.h"
#include "shell/core/csvtext.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using Names = CsvColumns::Names;

/// The words by which a heading names a column of a grid, the surest first.
const QList<Names> &historyNames()
{
    static const QList<Names> names{
        {1, {u"date"_s, u"datum"_s, u"day"_s}},
        {0, {u"mileage"_s, u"odometer"_s, u"kilometer"_s, u"kilometre"_s, u"miles"_s, u"km"_s, u"reading"_s}},
        {3, {u"cost"_s, u"price"_s, u"amount"_s, u"total"_s, u"paid"_s}},
        {2,
         {u"description"_s, u"action"_s, u"service"_s, u"work"_s, u"item"_s, u"note"_s, u"text"_s,
          u"what"_s}}};
    return names;
}

const QList<Names> &fuelNames()
{
    static const QList<Names> names{
        {0, {u"date"_s, u"datum"_s, u"day"_s}},
        {1, {u"previous"_s, u"last reading"_s, u"start"_s}},
        {5, {u"per gallon"_s, u"per liter"_s, u"per litre"_s, u"mpg"_s, u"km/l"_s, u"economy"_s}},
        {3, {u"driven"_s, u"distance"_s, u"trip"_s, u"since last"_s}},
        {2, {u"current"_s, u"odometer"_s, u"mileage"_s, u"reading"_s, u"kilometer"_s, u"kilometre"_s}},
        {6, {u"cost"_s, u"total"_s, u"paid"_s, u"amount"_s}},
        {4, {u"used"_s, u"gallons"_s, u"liters"_s, u"litres"_s, u"volume"_s, u"quantity"_s, u"fuel"_s}}};
    return names;
}

template <typename Row, std::size_t count, typename Headings>
QByteArray file(const QList<Row> &rows, const std::array<QString Row::*, count> &columns,
                const Headings &headings)
{
    QString text = CsvText::line(QStringList(headings.begin(), headings.end()));
    for (const Row &row : rows) {
        QStringList cells;
        for (const auto column : columns)
            cells << row.*column;
        text += CsvText::line(cells);
    }
    return CsvText::file(text);
}

} // namespace

QByteArray CarCsv::text(const History &history, DistanceUnit unit)
{
    return file(history, historyColumns, CarWords::historyHeadings(unit));
}

QByteArray CarCsv::text(const FuelLog &fuel, DistanceUnit unit)
{
    return file(fuel, fuelColumns, CarWords::fuelHeadings(unit));
}

QString CarCsv::fileName(const QString &vehicle, CarPart part)
{
    const QString what = part == CarPart::Fuel      ? u"fuel"_s
                         : part == CarPart::Repairs ? u"repairs"_s
                                                    : u"maintenance"_s;
    return CsvText::fileName(vehicle, what);
}

bool CarCsv::isInOtherUnit(const QString &heading, DistanceUnit unit)
{
    static const QRegularExpression miles(u"\\b(miles?|mi|mpg|gal|gallons?)\\b"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression kilometers(u"\\b(kms?|kilomet(er|re)s?|lit(er|re)s?)\\b"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    const bool isInMiles = heading.contains(miles);
    return isInMiles != heading.contains(kilometers) && isInMiles != (unit == DistanceUnit::Miles);
}

CsvColumns::Wanted CarCsv::columns(CarPart part, DistanceUnit unit)
{
    return {.count = CarRows::columnCount(part),
            .names = part == CarPart::Fuel ? fuelNames() : historyNames(),
            .needed = CarRows::dateColumn(part),
            .isOther = [unit](const QString &heading) { return isInOtherUnit(heading, unit); }};
}
