// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carrecord.h"
#include "cars/model/vehiclefiles.h"
#include "shell/core/programstate.h"

#include <QDate>

/// What a history of a car comes to.
struct HistorySums {
    qsizetype count = 0;
    qint64 cents = 0;
    qint64 thisYear = 0; ///< in cents
    qint64 lastYear = 0; ///< in cents
    QDate newest;        ///< invalid where no row has a date
    QString newestName;  ///< description of the newest row

    static HistorySums of(const CarRecord &car, CarPart part, DateStyle style, QDate today);

    bool operator==(const HistorySums &) const = default;
};
