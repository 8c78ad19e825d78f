// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/filecopier.h"
#include "backup/model/setrecords.h"

#include <QList>
#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/// Counts the records in a copy of the household that lies on several disks: their files are gathered in a
/// folder while each disk is in.
class CopyCount
{
public:
    using Count = std::function<QList<BackupCount>(const QString &folder)>;

    /// Nothing is gathered where `count` is empty.
    explicit CopyCount(Count count);

    bool isWanted() const { return bool(m_count); }
    /// The file `name` of the household stands at `path` now. Pictures, and what is too large to have
    /// records, are left out.
    void add(const QString &name, const QString &path);
    /// Those that stand whole in the folder of a set, whose disk has these parts.
    void addDisk(const QString &folder, const QList<BackupPart> &parts);
    /// What lies on other disks, from the household's own file at `path`. False where that is not the same as
    /// the copy, byte for byte; a picture is not looked at.
    [[nodiscard]] bool addSame(const QString &path, const BackupFile &copied, FileCopier &copier);

    QList<BackupCount> ofGathered() const
    {
        return m_folder ? m_count(m_folder->path()) : QList<BackupCount>();
    }
    /// Of a copy that stands in one folder.
    QList<BackupCount> of(const QString &folder) const
    {
        return m_count ? m_count(folder) : QList<BackupCount>();
    }

private:
    Count m_count;
    std::unique_ptr<QTemporaryDir> m_folder;
};
