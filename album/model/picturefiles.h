// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>

/// The files of pictures in folders and the folders in them.
namespace PictureFiles {

/// By its name: "jpg", "heic" and others in any case.
bool isPicture(const QString &fileName);

/// Visits the pictures of `paths`, which are files or folders, by name within each folder. Folders that lead
/// back to one that was visited are left out, and so is what is hidden. False when `visit` or a stop ended
/// it.
bool forEach(const QStringList &paths, const std::atomic_bool &isStopped,
             const std::function<bool(const QString &path)> &visit);

/// The time of a file in seconds since 1970, UTC, as records have it.
qint64 timeOf(const QString &path);

} // namespace PictureFiles
