// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/vehiclefiles.h"
#include "shell/core/place.h"

/// A place in the files of a car, as other functions keep it.
struct CarPlace {
    int slot = 0;
    CarPart part = CarPart::Sheet;
    int row = -1; ///< of the schedule, a history or the fuel tracker; -1: none

    /// What a note, a hit of the search or a deletion leads to.
    static CarPlace of(const Place &place)
    {
        if (place.row < 0)
            return {.slot = place.record};
        const int part = place.row / rowsOfAPart;
        return part < int(carParts.size())
                   ? CarPlace{place.record, carParts[std::size_t(part)], place.row % rowsOfAPart}
                   : CarPlace{.slot = place.record};
    }

    Place place(QDate date = {}) const
    {
        return {.record = slot, .date = date, .row = row < 0 ? -1 : int(part) * rowsOfAPart + row};
    }

    bool operator==(const CarPlace &) const = default;

private:
    static constexpr int rowsOfAPart = 1'000'000;
};
