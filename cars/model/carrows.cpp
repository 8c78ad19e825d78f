// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carrows.h"

#include "cars/model/carnumbers.h"
#include "cars/model/carwords.h"

#include <algorithm>
#include <numeric>

namespace {

template <typename Record>
auto &history(Record &car, CarPart part)
{
    return part == CarPart::Maintenance ? car.maintenance : car.repairs;
}

} // namespace

int CarRows::columnCount(CarPart part)
{
    return int(part == CarPart::Fuel ? fuelColumns.size() : historyColumns.size());
}

QStringList CarRows::headings(CarPart part, DistanceUnit unit)
{
    const auto list = [](const auto &texts) { return QStringList(texts.begin(), texts.end()); };
    return part == CarPart::Fuel ? list(CarWords::fuelHeadings(unit)) : list(CarWords::historyHeadings(unit));
}

int CarRows::dateColumn(CarPart part)
{
    return part == CarPart::Fuel ? 0 : 1;
}

int CarRows::costColumn(CarPart part)
{
    return columnCount(part) - 1;
}

int CarRows::readingColumn(CarPart part)
{
    return part == CarPart::Fuel ? 2 : 0;
}

qsizetype CarRows::count(const CarRecord &car, CarPart part)
{
    return part == CarPart::Fuel ? car.fuel.size() : history(car, part).size();
}

QString CarRows::text(const CarRecord &car, CarPart part, qsizetype row, int column)
{
    return part == CarPart::Fuel ? car.fuel[row].*fuelColumns[std::size_t(column)]
                                 : history(car, part)[row].*historyColumns[std::size_t(column)];
}

void CarRows::setText(CarRecord &car, CarPart part, qsizetype row, int column, const QString &text)
{
    if (part == CarPart::Fuel)
        car.fuel[row].*fuelColumns[std::size_t(column)] = text;
    else
        history(car, part)[row].*historyColumns[std::size_t(column)] = text;
}

QStringList CarRows::cells(const CarRecord &car, CarPart part, qsizetype row)
{
    QStringList cells;
    for (int column = 0; column < columnCount(part); ++column)
        cells << text(car, part, row, column);
    return cells;
}

void CarRows::append(CarRecord &car, CarPart part, const QStringList &cells)
{
    if (part == CarPart::Fuel)
        car.fuel.append(FuelRow());
    else
        history(car, part).append(HistoryRow());
    const qsizetype row = count(car, part) - 1;
    for (int column = 0; column < std::min(columnCount(part), int(cells.size())); ++column)
        setText(car, part, row, column, cells[column]);
}

void CarRows::remove(CarRecord &car, CarPart part, qsizetype row)
{
    if (part == CarPart::Fuel)
        car.fuel.removeAt(row);
    else
        history(car, part).removeAt(row);
}

QList<qsizetype> CarRows::newestFirst(const CarRecord &car, CarPart part, DateStyle style)
{
    const qsizetype rows = count(car, part);
    std::vector<QDate> dates;
    dates.reserve(std::size_t(rows));
    for (qsizetype row = 0; row < rows; ++row) {
        const auto date = CarNumbers::date(text(car, part, row, dateColumn(part)), style);
        dates.push_back(date ? *date : dates.empty() ? QDate() : dates.back());
    }
    QList<qsizetype> order(rows);
    std::iota(order.rbegin(), order.rend(), qsizetype(0));
    std::ranges::stable_sort(order, [&dates](qsizetype one, qsizetype other) {
        return dates[std::size_t(one)] > dates[std::size_t(other)];
    });
    return order;
}
