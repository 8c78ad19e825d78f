// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightchange.h"

#include "storage/changeset.h"
#include "storage/log.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

/// What the file `name` holds; nothing where there is none. False where it is there and cannot be read.
bool readInto(std::optional<QByteArray> &content, const DataFolder &folder, const QString &name)
{
    content.reset();
    const QString path = folder.filePath(name);
    if (!QFileInfo::exists(path))
        return true;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    content = file.readAll();
    return file.error() == QFile::NoError;
}

} // namespace

void WeightChange::replace(const DataFolder &folder, const QString &name,
                           const std::optional<QByteArray> &after)
{
    Place place{name, {}, after};
    m_isUnknown = !readInto(place.before, folder, name) || m_isUnknown;
    m_places.push_back(std::move(place));
}

std::optional<QByteArray> WeightChange::before(const QString &name) const
{
    const auto place = std::ranges::find(m_places, name, &Place::name);
    return place == m_places.end() ? std::nullopt : place->before;
}

bool WeightChange::isEmpty() const
{
    return std::ranges::all_of(m_places, [](const Place &place) { return place.before == place.after; });
}

bool WeightChange::commit(const DataFolder &folder)
{
    return write(folder, &Place::after);
}

ChangeResult WeightChange::undo(const DataFolder &folder)
{
    return exchange(folder, &Place::after, &Place::before);
}

ChangeResult WeightChange::redo(const DataFolder &folder)
{
    return exchange(folder, &Place::before, &Place::after);
}

UndoStep WeightChange::step(const QString &title, const DataFolder &folder,
                            const std::function<void()> &show) const
{
    const auto change = std::make_shared<WeightChange>(*this);
    const auto shown = [show](ChangeResult result) {
        if (result != ChangeResult::Refused)
            show();
        return result;
    };
    return {title, [=, &folder] { return shown(change->undo(folder)); },
            [=, &folder] { return shown(change->redo(folder)); }};
}

ChangeResult WeightChange::exchange(const DataFolder &folder, Content held, Content wanted)
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

bool WeightChange::isThere(const DataFolder &folder, Content content) const
{
    return std::ranges::all_of(m_places, [&](const Place &place) {
        std::optional<QByteArray> held;
        return readInto(held, folder, place.name) && held == place.*content;
    });
}

bool WeightChange::write(const DataFolder &folder, Content wanted)
{
    if (m_isUnknown) {
        qCWarning(storageLog) << "Refused to write over a file that cannot be read";
        return false;
    }
    ChangeSet change(folder);
    for (const Place &place : m_places) {
        if (place.before == place.after)
            continue;
        if (const std::optional<QByteArray> &content = place.*wanted)
            change.replace(place.name, *content);
        else
            change.remove(place.name);
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
