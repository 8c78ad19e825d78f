// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What is said of snapshots that were not made, or cannot be opened.
namespace SnapshotLines {

inline QString notAvailable()
{
    return QStringLiteral("This program came without what makes and opens snapshots.");
}

inline QString notWritten(const QString &folder)
{
    return QStringLiteral("The snapshot could not be written to %1.").arg(folder);
}

inline QString notRead(const QString &name)
{
    return QStringLiteral("No snapshot was made: %1 could not be read.").arg(name);
}

inline QString alwaysChanging(const QString &name)
{
    return QStringLiteral("No snapshot was made: %1 was changed each time it was read.").arg(name);
}

inline QString stopped()
{
    return QStringLiteral("The snapshot was stopped.");
}

inline QString damaged()
{
    return QStringLiteral("This snapshot is damaged.");
}

inline QString notOfOurs()
{
    return QStringLiteral("This file is no snapshot of a household. Nothing was taken from it.");
}

inline QString notUnpacked()
{
    return QStringLiteral("There is no room to open the snapshot.");
}

} // namespace SnapshotLines
