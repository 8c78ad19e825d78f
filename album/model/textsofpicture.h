// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/metadata/metadata.h"
#include "album/model/picturetexts.h"

#include <QDate>

/// From what stands in a picture, each thing up to three times, to what it says, and back.
namespace TextsOfPicture {

/// What it says: XMP before IPTC before EXIF, dates as they are told in the manual. Dates beyond `today` are
/// none.
PictureTexts of(const Metadata &found, QDate today);

/// What has to be changed for it to say `texts`. What it says already, or says in a longer form of which
/// `texts` have a cut one, is no change. Where `texts` have no date, one of `goneDates` is taken out.
MetadataChange change(const Metadata &found, const PictureTexts &texts, QDate today,
                      const QStringList &goneDates = {});

} // namespace TextsOfPicture
