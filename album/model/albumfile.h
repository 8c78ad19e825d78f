// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photoalbum.h"

#include <QByteArray>

#include <array>
#include <optional>

/// Albums, and the places of pictures in them, as the bytes of their records, which share a file.
namespace AlbumFile {

inline const QString name = QStringLiteral("Photobk4.Fil");
inline constexpr qsizetype recordLength = 640;
inline constexpr int lastRecord = 1000000;
inline constexpr QByteArrayView albumMark("ALB1");
inline constexpr QByteArrayView placeMark("PLC1");
/// Between two places of an album, and two albums in the list.
inline constexpr quint32 orderStep = 1024;

/// Where the fields of either begin, the last one's end behind them.
inline constexpr std::array<qsizetype, 8> fields{0, 4, 8, 12, 16, 112, 624, 640};

/// A whole record; its number is not in it.
QByteArray encode(const PhotoAlbum &album);
QByteArray encode(const PhotoPlace &place);

/// Nothing where the record is no album.
std::optional<PhotoAlbum> decodeAlbum(int record, QByteArrayView bytes);
/// Nothing where the record is no place.
std::optional<PhotoPlace> decodePlace(int record, QByteArrayView bytes);

} // namespace AlbumFile
