// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

/// Who could read a file of a snapshot when it was made.
enum class KeptAs {
    Readable, ///< everybody, and a copy for spreadsheets lies beside it
    Guarded,  ///< whoever has the ZIP; in the program stood the password before it
    Sealed    ///< nobody without its own password
};

/// One file of a snapshot.
struct SnapshotFile {
    QString name; ///< in the household's folder
    qint64 size = 0;
    QDateTime changed; ///< UTC
    QByteArray hash;   ///< SHA-256
    QString function;  ///< whose it is: "AddressBook"
    KeptAs keptAs = KeptAs::Readable;

    bool operator==(const SnapshotFile &) const = default;
};

/// What a snapshot says of its files, in the order in which they lie in it: its "manifest.csv".
namespace SnapshotManifest {

inline constexpr QLatin1StringView fileName{"manifest.csv"};
/// A longer one is none of ours.
inline constexpr qint64 mostBytes = 32 << 20;

QByteArray encoded(const QList<SnapshotFile> &files);
/// Nothing where that is no such file, is cut, or names a file that no household can have, or one twice.
std::optional<QList<SnapshotFile>> decoded(const QByteArray &bytes);

} // namespace SnapshotManifest
