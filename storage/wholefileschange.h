// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/filechange.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

/// What one action of a person changed in files that are written whole, and that come and go.
class WholeFilesChange final : public FileChange
{
public:
    /// Adds: the file `name` holds `after`; without `after` it is gone. One that is there and cannot be read
    /// is not written over, and nothing else is then.
    void replace(const DataFolder &folder, const QString &name, const std::optional<QByteArray> &after);

    /// What the file `name` holds; nothing where there is none. False where it is there and cannot be read.
    static bool readInto(std::optional<QByteArray> &content, const DataFolder &folder, const QString &name);

    /// What the file `name` held before; nothing where it was not there, or is no part of the change.
    std::optional<QByteArray> before(const QString &name) const;

    /// Whether nothing would change.
    bool isEmpty() const;

protected:
    bool isThere(const DataFolder &folder, Side side) const override;
    bool addTo(ChangeSet &writes, const DataFolder &folder, Side side) const override;

private:
    struct Place {
        QString name;
        std::optional<QByteArray> before; ///< nothing: no such file
        std::optional<QByteArray> after;

        const std::optional<QByteArray> &on(Side side) const { return side == Side::Before ? before : after; }
    };

    std::vector<Place> m_places;
    bool m_isUnknown = false; ///< what a file holds could not be read
};
