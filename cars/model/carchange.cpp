// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carchange.h"

#include "cars/model/vehiclefiles.h"
#include "cars/model/vehiclelist.h"
#include "storage/changeset.h"
#include "storage/log.h"

#include <algorithm>
#include <memory>
#include <utility>

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

bool CarChange::commit(const DataFolder &folder)
{
    return write(folder, &Place::after);
}

ChangeResult CarChange::undo(const DataFolder &folder)
{
    return exchange(folder, &Place::after, &Place::before);
}

ChangeResult CarChange::redo(const DataFolder &folder)
{
    return exchange(folder, &Place::before, &Place::after);
}

UndoStep CarChange::step(const QString &title, const DataFolder &folder,
                         const std::function<void()> &show) const
{
    const auto change = std::make_shared<CarChange>(*this);
    const auto shown = [show](ChangeResult result) {
        if (result != ChangeResult::Refused)
            show();
        return result;
    };
    return {title, [=, &folder] { return shown(change->undo(folder)); },
            [=, &folder] { return shown(change->redo(folder)); }};
}

ChangeResult CarChange::exchange(const DataFolder &folder, Bytes held, Bytes wanted)
{
    // What was refused in the middle is finished first, and it may have been this.
    if (ChangeSet::isPending(folder) && !ChangeSet::recover(folder))
        return ChangeResult::Refused;
    if (std::exchange(m_isBegun, false) && isThere(folder, wanted))
        return ChangeResult::Done;
    if (!isThere(folder, held))
        return ChangeResult::Outdated;
    if (write(folder, wanted))
        return ChangeResult::Done;
    m_isBegun = ChangeSet::isPending(folder);
    return ChangeResult::Refused;
}

bool CarChange::isThere(const DataFolder &folder, Bytes bytes) const
{
    const RecordFile list = VehicleList(folder).file();
    return std::ranges::all_of(m_places, [&](const Place &place) {
        return place.slot > 0 ? list.read(place.slot).startsWith(place.*bytes)
                              : VehicleFiles::bytes(folder, place.name) == place.*bytes;
    });
}

bool CarChange::write(const DataFolder &folder, Bytes wanted)
{
    if (m_isUnknown) {
        qCWarning(storageLog) << "Refused to write over a file that cannot be read";
        return false;
    }
    ChangeSet change(folder);
    const RecordFile list = VehicleList(folder).file();
    for (const Place &place : m_places) {
        if (place.before == place.after)
            continue;
        if (place.slot > 0)
            change.write(list, place.slot, place.*wanted);
        else
            change.replace(place.name, place.*wanted, VehicleFiles::emptied());
    }
    if (m_thrownAway || m_broughtBack) {
        const bool isDone = wanted == &Place::after;
        Trash trash(folder);
        if (const auto &item = isDone ? m_thrownAway : m_broughtBack)
            trash.put(*item);
        if (const auto &item = isDone ? m_broughtBack : m_thrownAway)
            trash.take(*item);
        trash.addTo(change);
        m_trashState = trash.state();
    }
    return change.commit();
}
