// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setrecords.h"

#include <QByteArrayView>

#include <optional>

/// The two records of a backup's disks as files: sequential value files. Reading is strict: what is cut, too
/// long or names a file that no household can have is no record.
namespace DiskRecords {

/// More parts, or files, than this are no backup of a household.
inline constexpr int mostParts = 200'000;
/// A longer file is none of ours either.
inline constexpr qint64 mostBytes = qint64(64) * 1024 * 1024;

QByteArray encoded(const DiskRecord &record);
QByteArray encoded(const SetRecord &record);

std::optional<DiskRecord> diskRecord(QByteArrayView bytes);
std::optional<SetRecord> setRecord(QByteArrayView bytes);

/// The record in `folder`, that of the set; nothing where there is none that can be read. The first also
/// looks into the household's folder, under any spelling.
std::optional<SetRecord> readSet(const QString &folder);
std::optional<DiskRecord> readDisk(const QString &folder);

/// Whether a file of that name may stand in a record: it leads nowhere but below the folder that it is put
/// in, on any system.
bool isSafe(const QString &name);

} // namespace DiskRecords
