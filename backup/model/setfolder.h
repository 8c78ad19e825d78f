// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

/// Where everything lies on a disk: "Quillery Backup" on the drive, in it the folders of sets and, once for
/// all of them, the pictures.
namespace SetFolder {

inline constexpr QLatin1StringView top{"Quillery Backup"};
inline constexpr QLatin1StringView pictures{"Pictures"};
inline constexpr QLatin1StringView sums{"SHA256SUMS"};
/// All of a disk of a sealed set.
inline constexpr QLatin1StringView sealed{"Quillery.sealed"};
/// The beginning of a picture's name that stands outside the household's folder; its full path follows:
/// "Elsewhere/home/anne/x.jpg", "Elsewhere/C:/Users/x.jpg".
inline constexpr QLatin1StringView elsewhere{"Elsewhere/"};

/// "<drive>/Quillery Backup/2026-11-23 19.30.00"
QString path(const QString &drive, const QDateTime &begun);
/// "<drive>/Quillery Backup/Pictures"
QString picturesPath(const QString &drive);

/// The name in records of the file at `path`, below `folder` or elsewhere.
QString nameOf(const QString &folder, const QString &path);
/// The full path of a name that begins with `elsewhere`; empty for another.
QString elsewherePath(const QString &name);

/// Whether a file of that name is kept among the pictures of the drive, by its content, when it is not cut.
bool isPicture(const QString &name);

/// What follows the name of a piece: ".001".
QString pieceEnding(int piece);

/// `name` as every disk takes it: what FAT refuses is %XX, "a:b" is "a%3Ab".
QString escaped(const QString &name);

} // namespace SetFolder
