// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/picturetexts.h"

#include <QDate>

/// The texts that pictures keep in their own files, so that they outlive this program: in the picture, or in
/// "Name.jpg.xmp" beside it. All of this may be called on any thread.
namespace KeptTexts {

/// Whether this build can read and write them. Without, only a picture's name and time tell its date.
bool isBuiltIn();

/// What the picture at `path` and the file beside it say, the file beside it first. Where neither says when
/// it was taken, its name does, or the time of the file. Dates beyond `today` are none.
FoundTexts read(const QString &path, QDate today);

/// The file beside the picture that has texts of it, there or not.
QString besidePath(const QString &path);

enum class Into {
    Picture, ///< formats in which nothing can be written get the file beside
    Beside
};

/// How writing went.
struct Written {
    bool isKept = false; ///< the texts stand in the file now
    QString why;         ///< they do not, in words for the status bar
};

/// Writes the texts. What the files say already in a longer form, of which `texts` have a cut one, stays
/// whole; an empty date leaves the one that is there, unless it is one of `goneDates`, which were written
/// there and are not meant any longer. The picture itself stays as it is, byte for byte, or nothing is
/// written.
Written write(const QString &path, const PictureTexts &texts, Into into, QDate today,
              const QStringList &goneDates = {});

enum class Coordinates { Left, TakenOut };

/// The picture `bytes` as it is given away: with these texts in it, as it was wished with or without the
/// coordinates of where it was taken, and marked as turned to the right by so many quarters more. Nothing
/// where its format cannot be written, or would lose something.
QByteArray forGivingAway(const QByteArray &bytes, const PictureTexts &texts, QDate today,
                         Coordinates coordinates, int turns = 0);

} // namespace KeptTexts
