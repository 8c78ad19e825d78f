// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>
#include <vector>

class QIODevice;

/// What in the file of a picture is the picture itself, and what is said of it. Bytes may be anything.
namespace PictureData {

enum class Kind { Jpeg, Png, WebP, Tiff, Heif, Other };

/// By the first bytes of the file.
Kind kindOf(QByteArrayView bytes);

/// The parts of the file that the picture is made of, in their order: all but texts, dates and the like.
/// Nothing where the file is not what it says, or of a kind in which we write nothing.
/// Pieces of a file's colour profile are one part, behind the others.
std::optional<std::vector<QByteArray>> parts(QByteArrayView file);

/// Whether both files show the same picture, byte for byte.
bool isSame(QByteArrayView one, QByteArrayView other);

/// The file `now` with the colour profile packed as it was in `before`: a library that writes texts may pack
/// it anew.
QByteArray withProfileOf(QByteArrayView before, const QByteArray &now);

/// As much of the file as is needed to read what is said in it: without the picture where that can be left
/// out. Nothing where that is more than anybody has to say (16 MiB), or no such file.
QByteArray withoutPicture(QIODevice &file);

} // namespace PictureData
