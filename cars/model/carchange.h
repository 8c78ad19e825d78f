// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/filechange.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// What one action of a person changed in the files of the cars, and in the slots of their list.
class CarChange final : public FileChange
{
public:
    /// Adds: the file `name` holds `after`. One that is not there yet comes back as an emptied file; one that
    /// cannot be read is not written over, and nothing else is then.
    void replace(const DataFolder &folder, const QString &name, const QByteArray &after);
    /// Adds: `slot` of the list bears `name`; an empty one frees it.
    void setName(const DataFolder &folder, int slot, const QString &name);
    /// The same with the bytes that the record begins with.
    void setRecord(const DataFolder &folder, int slot, const QByteArray &after);

    /// Whether nothing would change.
    bool isEmpty() const;

protected:
    bool isThere(const DataFolder &folder, Side side) const override;
    bool addTo(ChangeSet &writes, const DataFolder &folder, Side side) const override;

private:
    /// A whole file, or the beginning of a record of the list.
    struct Place {
        QString name;
        int slot = 0; ///< 0: a whole file
        QByteArray before;
        QByteArray after;

        const QByteArray &on(Side side) const { return side == Side::Before ? before : after; }
    };

    std::vector<Place> m_places;
    bool m_isUnknown = false; ///< what a file holds could not be read
};
