// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carchange.h"

#include "cars/model/vehiclefiles.h"
#include "cars/model/vehiclelist.h"
#include "storage/changeset.h"
#include "storage/log.h"

#include <algorithm>

void CarChange::replace(const DataFolder &folder, const QString &name, const QByteArray &after)
{
    const std::optional<QByteArray> before = VehicleFiles::bytes(folder, name);
    m_isUnknown = m_isUnknown || !before;
    m_places.push_back({name, 0, before.value_or(QByteArray()), after});
}

void CarChange::setName(const DataFolder &folder, int slot, const QString &name)
{
    setRecord(folder, slot, VehicleList::encode(name));
}

void CarChange::setRecord(const DataFolder &folder, int slot, const QByteArray &after)
{
    const RecordFile list = VehicleList(folder).file();
    QByteArray before = list.read(slot);
    m_isUnknown = m_isUnknown || (before.isEmpty() && list.recordCount() >= slot);
    // A slot that the list does not have yet is a free one afterwards, since the list only grows.
    if (before.size() < after.size())
        before = VehicleList::encode(VehicleList::decode(before));
    m_places.push_back({VehicleList::fileName(), slot, before.first(after.size()), after});
}

bool CarChange::isEmpty() const
{
    return std::ranges::all_of(m_places, [](const Place &place) { return place.before == place.after; });
}

bool CarChange::isThere(const DataFolder &folder, Side side) const
{
    const RecordFile list = VehicleList(folder).file();
    return std::ranges::all_of(m_places, [&](const Place &place) {
        return place.slot > 0 ? list.read(place.slot).startsWith(place.on(side))
                              : VehicleFiles::bytes(folder, place.name) == place.on(side);
    });
}

bool CarChange::addTo(ChangeSet &writes, const DataFolder &folder, Side side) const
{
    if (m_isUnknown) {
        qCWarning(storageLog) << "Refused to write over a file that cannot be read";
        return false;
    }
    const RecordFile list = VehicleList(folder).file();
    for (const Place &place : m_places) {
        if (place.before == place.after)
            continue;
        if (place.slot > 0)
            writes.write(list, place.slot, place.on(side));
        else
            writes.replace(place.name, place.on(side), VehicleFiles::emptied());
    }
    return true;
}
