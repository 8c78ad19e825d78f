// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/lines.h"

/// What is said of pictures that were found again, brought in and given out.
namespace FindLines {

using namespace Qt::Literals::StringLiterals;

inline QString linked(qsizetype count)
{
    return u"Found again: "_s + AlbumLines::pictures(count);
}

inline QString newPictures(qsizetype count)
{
    return count == 1 ? u"1 new picture"_s : AlbumLines::number(count) + u" new pictures"_s;
}

} // namespace FindLines
