// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carneeds.h"
#include "cars/model/carrecord.h"
#include "shell/core/pagecontext.h"

#include <QList>
#include <QString>

/// What is printed of the cars.
namespace CarPages {

/// Pictures for the pages, as paths; what is empty is left out.
struct Pictures {
    QString car;
    QString consumption; ///< charts
    QString costs;
    QString odometer;
};

/// Whom a car's record is for. A buyer sees neither insurance nor what was paid for the car, nor what it cost
/// as a whole.
enum class Reader { Family, Buyer };

/// The largest that a chart stands on paper, in inches.
inline constexpr QSizeF chartSize{7.5, 2.6};

/// What is known of the car itself.
Page information(const CarRecord &car, const Pictures &pictures, const PageContext &context);

/// What is due, and the schedule.
Page schedule(const CarRecord &car, const PageContext &context);

Page maintenance(const CarRecord &car, const PageContext &context);
Page repairs(const CarRecord &car, const PageContext &context);

/// What the fill-ups come to, the chart of their consumption, and all of them.
Page fuel(const CarRecord &car, const Pictures &pictures, const PageContext &context);

/// The costs of the years by kinds, a year against the last and the months.
Page costs(const CarRecord &car, const Pictures &pictures, const PageContext &context);

/// All of that as one document.
Page record(const CarRecord &car, Reader reader, const Pictures &pictures, const PageContext &context);

/// "What All Our Cars Need": of each what is due and what comes next.
Page household(const QList<CarRecord> &cars, const PageContext &context);

} // namespace CarPages
