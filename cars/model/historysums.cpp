// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/historysums.h"

#include "cars/model/carnumbers.h"

HistorySums HistorySums::of(const CarRecord &car, CarPart part, DateStyle style, QDate today)
{
    HistorySums sums;
    const History &rows = part == CarPart::Maintenance ? car.maintenance : car.repairs;
    sums.count = rows.size();
    for (const HistoryRow &row : rows) {
        const qint64 cents = CarNumbers::cents(row.cost).value_or(0);
        const QDate date = CarNumbers::date(row.date, style).value_or(QDate());
        sums.cents += cents;
        if (date.isValid() && date.year() == today.year())
            sums.thisYear += cents;
        if (date.isValid() && date.year() == today.year() - 1)
            sums.lastYear += cents;
        if (date.isValid() && (sums.newest.isNull() || date >= sums.newest)) {
            sums.newest = date;
            sums.newestName = row.description.simplified();
        }
    }
    return sums;
}
