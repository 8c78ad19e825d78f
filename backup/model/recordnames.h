// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The form that names of files have in the records of a backup's disks.
namespace RecordNames {

/// `name` in UTF-8, with every byte outside printable ASCII, every "%" and every quote as %XX; "/" stands
/// between folders.
QByteArray encoded(const QString &name);

/// What `encoded` made; nothing where it is not of that form, or not UTF-8.
std::optional<QString> decoded(const QByteArray &text);

} // namespace RecordNames
