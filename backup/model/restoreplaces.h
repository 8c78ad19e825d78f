// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/filecopier.h"
#include "backup/model/restoreplan.h"

#include <QHash>

/// Where the files of a set go, one after another: those of one folder are looked for in one pass, and no two
/// files get one place.
class RestorePlaces
{
public:
    RestorePlaces(const RestorePlan::Aim &aim, const QList<BackupFile> &files,
                  const std::atomic<bool> &isStopped);

    /// The place of the next file and what restoring it would do there; its function is left open.
    RestoreItem placed(const BackupFile &file);

    /// The folder of the household in which pictures are looked for that are not where their records say.
    static QString picturesFolder() { return QStringLiteral("Pictures"); }
    /// "Garden 2.jpg" behind "Garden.jpg".
    static QString numbered(const QString &path, int number);

private:
    void look(const QString &folder, const QStringList &names);
    RestoreItem placedRecord(const BackupFile &file, RestoreItem item);
    RestoreItem placedDesk(RestoreItem item) const;
    RestoreItem placedPicture(const BackupFile &file, const QString &path, RestoreItem item);
    QString placeBeside(const QString &path, int number) const;
    bool isSame(const BackupFile &file, const QString &path, bool trustsTime);
    QString pathOf(const QString &name) const;
    QString pathElsewhere(const BackupFile &file);

    RestorePlan::Aim m_aim;
    FileCopier m_copier;
    QHash<QString, QString> m_paths;    ///< by names
    QHash<QString, QByteArray> m_taken; ///< places, with the hashes of what goes there
};
