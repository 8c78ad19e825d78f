// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/picturealbum.h"

#include <QDate>
#include <QList>
#include <QStringList>

class DataFolder;

/// What the photo album has in the household, for other functions. Nothing is made by asking. Pictures are
/// told by full paths; those that are not there are left out.
namespace AlbumHoldings {

/// Its files that are there, with those that were set aside.
QStringList files(const DataFolder &folder);

/// Each picture once.
QStringList pictures(const DataFolder &folder);

/// The albums with their pictures, as they stand in them; those without any are left out.
QList<PictureAlbum> albums(const DataFolder &folder);

/// The pictures of a day, in the order in which they were taken.
QStringList picturesOfDay(const DataFolder &folder, QDate day);
/// Those under which a person's name stands.
QStringList picturesOfPerson(const DataFolder &folder, const QString &person);

} // namespace AlbumHoldings
