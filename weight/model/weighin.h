// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// One time that a person stood on the scales: texts as they are stored.
struct WeighIn {
    QString date;   ///< "01/05/2026", whatever the style of dates
    QString weight; ///< "180." or "178.5"

    bool operator==(const WeighIn &) const = default;
};
