// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Why texts could not be kept in a picture's file.
namespace TextLines {

using namespace Qt::Literals::StringLiterals;

inline QString notBuiltIn()
{
    return u"This build of the program cannot write into pictures: texts stand in the album only"_s;
}

inline QString pictureNotThere()
{
    return u"The picture is not there: the texts stand in the album only"_s;
}

inline QString diskRefused()
{
    return u"The disk refused to take the texts into the file: they stand in the album only"_s;
}

inline QString wouldLose()
{
    return u"The picture cannot be written to without losing something: the texts stand in the album only"_s;
}

inline QString tooLarge()
{
    return u"The picture is too large to be written to: the texts stand in the album only"_s;
}

inline QString damagedBeside()
{
    return u"The file beside the picture cannot be read: the texts stand in the album only"_s;
}

} // namespace TextLines
