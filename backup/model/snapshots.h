// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

/// One state of the household's record files, as a ZIP.
struct Snapshot {
    QString path;
    QDateTime made; ///< by the clock of the desk; the day's first has no time but 0:00
    qint64 bytes = 0;

    bool operator==(const Snapshot &) const = default;
};

/// The snapshots in a folder: "2026-11-23.zip" is a day's first, "2026-11-23 14.05.09.zip" another one of the
/// day. Other files there are nobody's business.
namespace Snapshots {

/// In the household's folder, unless the user has chosen another one.
inline constexpr QLatin1StringView folderName{"Snapshots"};

/// Those that are there, the newest first.
QList<Snapshot> in(const QString &folder);
/// What they take of the disk.
qint64 bytes(const QList<Snapshot> &snapshots);

/// The path of one that is made at `now` in `folder`.
QString pathFor(const QString &folder, const QDateTime &now);

/// Those that are not kept: of the last 30 days all are, of the last 12 months the newest of each, and the
/// newest of each year. Where they take more than `limit` bytes (0: there is none), the oldest of the others
/// go too. The newest seven always stay. The oldest first.
QList<Snapshot> outdated(const QList<Snapshot> &snapshots, QDate today, qint64 limit);

/// False, with a line in the log, where the disk refuses.
[[nodiscard]] bool remove(const Snapshot &snapshot);

} // namespace Snapshots
