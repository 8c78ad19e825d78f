// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/vehicle.h"
#include "shell/core/programstate.h"
#include "shell/core/searchsource.h"
#include "shell/core/textindex.h"
#include "storage/datafolder.h"
#include "storage/filestamp.h"

#include <map>
#include <vector>

/// What the search over everything finds of the cars: themselves, by name, make, license and whatever else
/// the sheet says, and what was done to them, the newest first.
class CarSource final : public SearchSource
{
public:
    CarSource(const DataFolder &folder, DateStyle style);

    bool prepare() override;
    QList<SearchHit> matches(QStringView text, int most) const override;

private:
    /// A car as its files were at one time.
    struct Car {
        QString name;
        FileStamp seen;
        TextIndex texts;
        std::vector<SearchHit> hits; ///< of each text
    };

    Car read(const Vehicle &vehicle) const;

    const DataFolder &m_folder;
    DateStyle m_style;
    QList<Vehicle> m_unchecked; ///< cars whose files are still to be compared with what was read
    bool m_isChecking = false;
    std::map<int, Car> m_cars; ///< by slots
};
