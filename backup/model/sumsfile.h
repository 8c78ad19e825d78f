// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// A list of files with their hashes, as `sha256sum -c` reads it.
namespace SumsFile {

/// The line of the file at `path`, which is seen from the list's own folder.
QByteArray line(const QByteArray &hash, const QString &path);

} // namespace SumsFile
