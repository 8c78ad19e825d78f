// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/wholefileschange.h"

#include "storage/changeset.h"
#include "storage/log.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

void WholeFilesChange::replace(const DataFolder &folder, const QString &name,
                               const std::optional<QByteArray> &after)
{
    Place place{name, {}, after};
    m_isUnknown = !readInto(place.before, folder, name) || m_isUnknown;
    m_places.push_back(std::move(place));
}

bool WholeFilesChange::readInto(std::optional<QByteArray> &content, const DataFolder &folder,
                                const QString &name)
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

std::optional<QByteArray> WholeFilesChange::before(const QString &name) const
{
    const auto place = std::ranges::find(m_places, name, &Place::name);
    return place == m_places.end() ? std::nullopt : place->before;
}

bool WholeFilesChange::isEmpty() const
{
    return std::ranges::all_of(m_places, [](const Place &place) { return place.before == place.after; });
}

bool WholeFilesChange::isThere(const DataFolder &folder, Side side) const
{
    return std::ranges::all_of(m_places, [&](const Place &place) {
        std::optional<QByteArray> held;
        return readInto(held, folder, place.name) && held == place.on(side);
    });
}

bool WholeFilesChange::addTo(ChangeSet &writes, const DataFolder & /*folder*/, Side side) const
{
    if (m_isUnknown) {
        qCWarning(storageLog) << "Refused to write over a file that cannot be read";
        return false;
    }
    for (const Place &place : m_places) {
        if (place.before == place.after)
            continue;
        if (const std::optional<QByteArray> &content = place.on(side))
            writes.replace(place.name, *content);
        else
            writes.remove(place.name);
    }
    return true;
}
