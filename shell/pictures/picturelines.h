// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
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

inline QString notAPicture()
{
    return u"Program is unable to load this file as a Picture File!!!"_s;
}

inline QString choosePictureFirst()
{
    return u"Choose a picture in the list of files first"_s;
}

// Why a file is not shown.

inline QString noFile()
{
    return u"This is no file"_s;
}

inline QString emptyFile()
{
    return u"The file is empty"_s;
}

inline QString mayNotBeRead()
{
    return u"The file may not be read"_s;
}

inline QString noPictureInside()
{
    return u"There is no picture in this file"_s;
}

inline QString damagedPicture()
{
    return u"The picture is damaged"_s;
}

/// `kind` as it is called, "WebP".
inline QString kindNotInstalled(const QString &kind)
{
    return u"What reads "_s + kind + u" pictures is not installed"_s;
}

inline QString tooLarge(QSize pixels)
{
    return u"The picture is too large: "_s + QString::number(pixels.width()) + u" x "_s +
           QString::number(pixels.height()) + u" pixels"_s;
}

// Of a picture that is dropped or pasted.

inline QString noPictureToTake()
{
    return u"There is no picture to take"_s;
}

inline QString pictureNotKept()
{
    return u"The picture could not be kept: the disk refused a copy of it"_s;
}

inline QString alwaysKept()
{
    return u"What comes from no file is always kept"_s;
}

inline QString pictureKept(const QString &path)
{
    return u"The picture is kept as "_s + path;
}

} // namespace PictureLines
