// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carseries.h"

#include "cars/model/carnumbers.h"
#include "cars/model/duewords.h"

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Cents>
QList<DayValue> monthly(const CarCosts &costs, Cents cents)
{
    QList<DayValue> values;
    for (const CarCosts::Month &month : costs.months(costs.first(), costs.last())) {
        const qint64 paid = cents(month.sums);
        values.append({month.first, double(paid) / 100, CarNumbers::costText(paid)});
    }
    return values;
}

} // namespace

QList<DayValue> CarSeries::consumption(const FuelFigures &figures, DistanceUnit unit)
{
    QList<DayValue> values;
    for (const int row : figures.inOrder()) {
        const FillUp &fillUp = figures.fillUps()[row];
        if (fillUp.kind == FillUp::Kind::Counted && fillUp.date.isValid())
            values.append({fillUp.date, *fillUp.economy, DueWords::economy(*fillUp.economy, unit)});
    }
    return values;
}

QList<DayValue> CarSeries::costs(const CarCosts &costs)
{
    return monthly(costs, [](const CostSums &sums) { return sums.total(); });
}

QList<DayValue> CarSeries::costs(const CarCosts &costs, CostKind kind)
{
    return monthly(costs, [kind](const CostSums &sums) { return sums.of(kind); });
}

QList<DayValue> CarSeries::odometer(const DrivingLog &log, DistanceUnit unit)
{
    QList<DayValue> values;
    for (const OdometerReading &reading : log.readings())
        values.append({reading.date, reading.reading, DueWords::distance(reading.reading, unit)});
    return values;
}

QString CarSeries::consumptionTitle(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"How far a gallon goes"_s : u"How far a liter goes"_s;
}

QString CarSeries::costsTitle()
{
    return u"What the car costs each month"_s;
}

QString CarSeries::odometerTitle()
{
    return u"How the car is driven"_s;
}
