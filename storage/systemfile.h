// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>
#include <system_error>

/// The steps of `Disk`, and the paths, for which each system has a way of its own.
namespace SystemFile {

/// Puts what was written to the open file on the disk.
[[nodiscard]] bool flush(int handle);

/// Begins to put bytes of the open file on the disk, and waits until those that came before them are there,
/// so that little of a large file waits in memory. Only `flush` says that they are there.
void startFlush(int handle, qint64 offset, qint64 bytes);

/// Puts everything on the disk that was written to the one that the folder at `path` lies on, many files in
/// one step. Nothing where the system knows no such step: then each is to be flushed.
std::optional<bool> flushAll(const QString &path);

/// Lets go of what the system keeps of the open file in memory, so that what is read comes from the disk;
/// where the system can be told.
void forget(int handle);

/// Puts the names of the folder at `path` on the disk, where names are not put there by themselves.
void flushNames(const QString &path);

/// Gives the file `from` the name `to`, in place of the file of that name. Where a file cannot be replaced
/// while another program has it open, tries again for a second at most.
std::error_code renameOver(const QString &from, const QString &to);

/// The numbers by which `qt_error_string` tells a disk that has no room left, or none for this user.
std::span<const int> failuresWhenFull();

/// The same for one that nothing may be written to.
std::span<const int> failuresWhenProtected();

/// The path as a library takes it that opens files by itself.
QByteArray encodedPath(const QString &path);

} // namespace SystemFile
