// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <system_error>

/// The steps of `Disk`, and the paths, for which each system has a way of its own.
namespace SystemFile {

/// Puts what was written to the open file on the disk.
[[nodiscard]] bool flush(int handle);

/// Puts the names of the folder at `path` on the disk, where names are not put there by themselves.
void flushNames(const QString &path);

/// Gives the file `from` the name `to`, in place of the file of that name. Where a file cannot be replaced
/// while another program has it open, tries again for a second at most.
std::error_code renameOver(const QString &from, const QString &to);

/// The path as a library takes it that opens files by itself.
QByteArray encodedPath(const QString &path);

} // namespace SystemFile
