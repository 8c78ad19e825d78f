// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class DataFolder;
class QSettings;

/// What the user has chosen about snapshots; it belongs to the desk.
struct SnapshotChoice {
    QString folder;   ///< where they are kept
    qint64 limit = 0; ///< of their space, in bytes; 0 without one

    static SnapshotChoice read(const QSettings &store, const DataFolder &household);
    void write(QSettings &store, const DataFolder &household) const;

    bool operator==(const SnapshotChoice &) const = default;
};
