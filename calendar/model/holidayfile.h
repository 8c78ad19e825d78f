// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/holidayset.h"
#include "storage/tabline.h"

#include <QByteArrayList>

/// Holidays as a file has them: the household's own, and the built-in ones.
struct HolidayFile {
    /// A line that cannot be read.
    struct Fault {
        int line = 0; ///< from 1
        QString text; ///< as it stands there

        bool operator==(const Fault &) const = default;
    };

    TabLine::Form form = TabLine::Empty;
    QList<HolidaySet> sets{};
    QByteArrayList head{}; ///< lines before the first set, which are kept
    QList<Fault> faults{}; ///< told, and left out

    static HolidayFile read(QByteArrayView bytes);
    /// With what could not be read, where it stood.
    QByteArray bytes() const;

    /// By its name, without regard to case; null where there is none.
    const HolidaySet *set(const QString &name) const;
};
