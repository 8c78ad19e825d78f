// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/filechange.h"
#include "storage/recordfile.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <utility>

/// What one action of a person changed in record files.
class RecordChange final : public FileChange
{
public:
    /// Adds: record `number` of `file` begins with `after`. What stands there now is what comes back; bytes
    /// that a file does not have yet come back as zeros, since files never shrink.
    void write(const RecordFile &file, int number, QByteArrayView after);
    /// The same, where it is `before` that comes back.
    void write(const RecordFile &file, int number, QByteArrayView after, QByteArrayView before);

    /// Adds what another change did after this one.
    void add(const RecordChange &later);

    /// Whether there is something to take back.
    bool isEmpty() const;

protected:
    bool isThere(const DataFolder &folder, Side side) const override;
    bool addTo(ChangeSet &writes, const DataFolder &folder, Side side) const override;

private:
    struct Place {
        qsizetype recordLength = 0;
        QByteArray before;
        QByteArray after;

        const QByteArray &on(Side side) const { return side == Side::Before ? before : after; }
    };
    /// By file and record: an action that writes to a record twice has one place there.
    using Places = std::map<std::pair<QString, int>, Place>;

    void add(const Places::key_type &where, qsizetype recordLength, QByteArrayView after,
             QByteArrayView before);

    Places m_places;
    bool m_isUnknown = false; ///< what stood there could not be read, and will not be guessed
};
