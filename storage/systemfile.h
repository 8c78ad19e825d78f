// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <system_error>

/// The steps of `Disk` that each system has a call of its own for.
namespace SystemFile {

/// Puts what was written to the open file on the disk.
[[nodiscard]] bool flush(int handle);

/// Puts the names of the folder at `path` on the disk, where names are not put there by themselves.
void flushNames(const QString &path);

/// Gives the file `from` the name `to`, in place of the file of that name. Where a file cannot be replaced
/// while another program has it open, tries again for a second at most.
std::error_code renameOver(const QString &from, const QString &to);

} // namespace SystemFile
