// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carcsv.h"

#include "cars/model/carwords.h"
#include "shell/core/csvtext.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The words by which a heading names a column of a grid, the surest first.
struct Named {
    std::size_t column;
    QStringList words;
};

const QList<Named> &historyNames()
{
    static const QList<Named> names{
        {1, {u"date"_s, u"datum"_s, u"day"_s}},
        {0, {u"mileage"_s, u"odometer"_s, u"kilometer"_s, u"kilometre"_s, u"miles"_s, u"km"_s, u"reading"_s}},
        {3, {u"cost"_s, u"price"_s, u"amount"_s, u"total"_s, u"paid"_s}},
        {2,
         {u"description"_s, u"action"_s, u"service"_s, u"work"_s, u"item"_s, u"note"_s, u"text"_s,
          u"what"_s}}};
    return names;
}

const QList<Named> &fuelNames()
{
    static const QList<Named> names{
        {0, {u"date"_s, u"datum"_s, u"day"_s}},
        {1, {u"previous"_s, u"last reading"_s, u"start"_s}},
        {5, {u"per gallon"_s, u"per liter"_s, u"per litre"_s, u"mpg"_s, u"km/l"_s, u"economy"_s}},
        {3, {u"driven"_s, u"distance"_s, u"trip"_s, u"since last"_s}},
        {2, {u"current"_s, u"odometer"_s, u"mileage"_s, u"reading"_s, u"kilometer"_s, u"kilometre"_s}},
        {6, {u"cost"_s, u"total"_s, u"paid"_s, u"amount"_s}},
        {4, {u"used"_s, u"gallons"_s, u"liters"_s, u"litres"_s, u"volume"_s, u"quantity"_s, u"fuel"_s}}};
    return names;
}

std::size_t columnCount(CarPart part)
{
    return part == CarPart::Fuel ? fuelColumns.size() : historyColumns.size();
}

qsizetype dateColumn(CarPart part)
{
    return part == CarPart::Fuel ? 0 : 1;
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

bool hasDigit(const QStringList &cells)
{
    return std::ranges::any_of(cells.join(QString()), [](QChar character) { return character.isDigit(); });
}

QList<int> namedBy(const QStringList &heading, CarPart part, DistanceUnit unit)
{
    QList<int> places(qsizetype(columnCount(part)), -1);
    for (const Named &named : part == CarPart::Fuel ? fuelNames() : historyNames()) {
        int &place = places[qsizetype(named.column)];
        for (const QString &word : named.words) {
            for (int i = 0; place < 0 && i < int(heading.size()); ++i) {
                if (!places.contains(i) && !CarCsv::isInOtherUnit(heading[i], unit) &&
                    heading[i].contains(word, Qt::CaseInsensitive))
                    place = i;
            }
        }
    }
    return places;
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

CarCsv::Columns CarCsv::Columns::find(const QList<QStringList> &lines, CarPart part, DistanceUnit unit)
{
    for (int i = 0; i < int(lines.size()); ++i) {
        Columns columns{namedBy(lines[i], part, unit), i};
        if (columns.isComplete() && std::ranges::count(columns.places, -1) + 2 <= columns.places.size())
            return columns;
    }
    // Names in another language are names all the same: somebody will say what they mean.
    if (lines.size() > 1 && !hasDigit(lines[0]) && hasDigit(lines[1]))
        return {namedBy(lines[0], part, unit), 0};
    Columns columns;
    const auto count = qsizetype(columnCount(part));
    const bool fits = !lines.isEmpty() && lines.first().size() == count;
    for (int i = 0; i < int(count); ++i)
        columns.places.append(fits ? i : -1);
    return columns;
}

bool CarCsv::Columns::isComplete() const
{
    const CarPart part =
        places.size() == qsizetype(fuelColumns.size()) ? CarPart::Fuel : CarPart::Maintenance;
    return !places.isEmpty() && places[dateColumn(part)] >= 0;
}
