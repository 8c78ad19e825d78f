// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

/// What a picture's file can keep of what is said of the picture. Texts are whole here, however long they
/// are.
struct PictureTexts {
    QString caption;
    QStringList people;
    QStringList tags;
    int rating = 0; ///< 0 to 5
    QString date;   ///< in EDTF, as records have it; empty when nothing says when it was taken

    bool isEmpty() const { return *this == PictureTexts(); }
    bool operator==(const PictureTexts &) const = default;
};

/// Where a picture's date was found.
enum class DateFound {
    Nowhere,
    Picture, ///< said in the picture, or in the file beside it
    File     ///< read from its name, or the time of the file
};

/// What was found out about a picture when its file was read.
struct FoundTexts {
    PictureTexts texts;
    DateFound dateFound = DateFound::Nowhere;
    QSize pixels;        ///< as stored, before the picture's own turning; empty where it is not known
    int orientation = 1; ///< the picture's own, 1 to 8
    bool hasCoordinates = false;

    bool operator==(const FoundTexts &) const = default;
};
