// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/filecopier.h"
#include "backup/model/restoresource.h"

#include <QDateTime>

/// A set as it lies on its disks, each file under its own name.
class SetSource final : public RestoreSource
{
public:
    SetSource(QByteArray set, const QDateTime &begun);

    Reading read(const QString &root, int number, Visitor &visitor) override;
    std::optional<DiskRecord> diskAt(const QString &root) const override;

    /// Whether disk `number` stands at `root`: `Done`, with the folder of the set on it, or why not.
    Reading find(const QString &root, int number, QString &folder) const;

private:
    /// The folder of the set at `root`; that of another computer's clock may be called otherwise.
    QString folderAt(const QString &root) const;
    Reading readParts(const QString &folder, const DiskRecord &disk, Visitor &visitor);
    Reading readPart(const QString &path, const BackupPart &part, Visitor &visitor);

    QByteArray m_set;
    QDateTime m_begun;
    FileCopier m_copier{[](qint64) { return true; }}; // the visitor stops it
};
