// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

/// What a function says that it has.
struct BackupSource {
    QString function;     ///< its name in the records: "AddressBook"
    QStringList files;    ///< names in the household's folder
    QStringList pictures; ///< full paths
};

/// A file that goes into a backup.
struct BackupItem {
    QString name;     ///< in the records: see `SetFolder::nameOf`
    QString path;     ///< where it is; empty where `content` is all of it
    QString function; ///< whose it is, or one of the groups of `Holdings`
    qint64 size = 0;
    QDateTime changed;  ///< UTC
    QByteArray content; ///< of what is no file here

    bool operator==(const BackupItem &) const = default;
};

/// What belongs to whom in a household: everything that a backup takes along.
struct Holdings {
    /// The groups of what belongs to no function; their captions are theirs.
    static constexpr QLatin1StringView settings{"Program settings"};
    static constexpr QLatin1StringView password{"Password"};
    static constexpr QLatin1StringView others{"Other files"};
    /// The user's desk, written out.
    static constexpr QLatin1StringView deskName{"Desk.conf"};

    QList<BackupItem> items; ///< the password's file, those of the sources, the groups; pictures last
    QStringList leftOut;     ///< names that no disk takes, for the report; nothing else is left out unsaid

    /// Of `folder` now. `desk` is the content of `deskName`; none without it.
    static Holdings of(const DataFolder &folder, const QList<BackupSource> &sources, const QByteArray &desk);
    /// Whether the file of that name belongs to the program's settings.
    static bool isSetting(const QString &name);
    /// The names of what goes along of `folder`, without its folders.
    static QStringList filesAtTop(const DataFolder &folder);
    /// Those of these functions and groups alone.
    Holdings only(const QStringList &functions) const;

    qint64 bytes() const;
};
