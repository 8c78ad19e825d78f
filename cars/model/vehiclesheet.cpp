// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/vehiclesheet.h"

using namespace Qt::Literals::StringLiterals;

void VehicleSheet::nameFirstActions()
{
    const std::array names{u"Change Oil and Filter"_s, u"Rotate Tires"_s,    u"Inspect Brake Linings"_s,
                           u"Replace Air Filter"_s,    u"Replace Coolant"_s, u"Replace Spark Plugs"_s,
                           u"Replace Timing Belt"_s};
    for (std::size_t row = 0; row < names.size(); ++row)
        actions[row].name = names[row];
}
