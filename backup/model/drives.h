// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A drive that a backup can go to.
struct Drive {
    QString name;   ///< its own, "SILVER"; its folder's where it has none
    QString folder; ///< where it is mounted
    qint64 free = 0;
    qint64 size = 0;
    bool isReadOnly = false;

    bool operator==(const Drive &) const = default;
};

/// The drives that are plugged in. Asking for them reads nothing on them.
namespace Drives {

/// Without those of the system itself.
QList<Drive> now();

/// The drive that the folder lies on, with the folder as its place.
Drive of(const QString &folder);

/// Whether a drive is mounted at the folder; false for a folder in a drive, and for a place that a drive was
/// taken from.
bool isMountedAt(const QString &folder);

/// Whether the folder lies in one of `own`, or is one of them: no backup goes to where the household is.
bool isOwn(const QString &folder, const QStringList &own);

} // namespace Drives
