// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What stands in the place of a picture that cannot be seen.
namespace PictureLines {

using namespace Qt::Literals::StringLiterals;

inline QString loading()
{
    return u"Loading"_s;
}

inline QString pictureNotFound()
{
    return u"Picture not found"_s;
}

} // namespace PictureLines
