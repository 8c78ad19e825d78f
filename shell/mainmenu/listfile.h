// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

/// The list files of other editions, as far as this one looks into them.
namespace ListFile {

/// Whether a line names a file: empty lines and lines marked "N*" do not.
bool isUsable(QStringView line);

/// Whether the file at `path` has a line that names a file; false when it is missing or cannot be read.
bool hasUsableLine(const QString &path);

} // namespace ListFile
