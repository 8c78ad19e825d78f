// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photo.h"
#include "album/model/picturetexts.h"

#include <QDate>

/// What a record has of a picture's file, and what the file could keep of the record.
namespace PhotoOfFile {

/// The picture of the file at `path`, with what it says as far as a record has room for it. Its own path is
/// left to the caller. On any thread.
Photo read(const QString &path, QDate today);

/// Puts what a file said of itself into the record; nothing of it is known afterwards that the file did not
/// say.
void take(Photo &photo, const FoundTexts &found);
/// The size and time that the file has now; the hash of another content is forgotten.
void takeFacts(Photo &photo, const QString &path);

/// What can stand in a file of what the record says. A date is meant only where a person typed it.
PictureTexts texts(const Photo &photo);

/// The texts of a file as far as a record has room for them, to be compared with those of a record.
PictureTexts cut(const PictureTexts &texts);

} // namespace PhotoOfFile
