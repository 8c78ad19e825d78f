// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QSize>

#include <optional>

/// What one of the ways of keeping texts in a picture has of them: XMP, IPTC or EXIF. Bytes as they stand
/// there, in UTF-8 but where an old program wrote them.
struct MetadataTexts {
    QByteArray caption;
    QList<QByteArray> people;
    QList<QByteArray> tags;
};

/// What is said of a picture in its file, each thing as it was found.
struct Metadata {
    MetadataTexts xmp;
    MetadataTexts iptc;
    MetadataTexts exif;
    QByteArray rating;
    QByteArray exifOriginal;  ///< when it was taken: "2026:11:21 14:03:00"
    QByteArray exifDigitized; ///< when it was scanned, or taken
    QByteArray xmpCreated;    ///< "2026-11-21T14:03:00", or less of it
    QByteArray xmpOriginal;
    QSize pixels; ///< as they are stored, before any turning
    int orientation = 1;
    bool hasCoordinates = false; ///< it says where on the earth it was taken
};

/// What is to be changed in it; what has no value stays as it is.
struct MetadataChange {
    std::optional<QByteArray> caption; ///< an empty one is taken out; this and all others in UTF-8
    std::optional<QList<QByteArray>> people;
    std::optional<QList<QByteArray>> tags;
    std::optional<int> rating;
    std::optional<QByteArray> xmpCreated;
    std::optional<QByteArray> exifOriginal;
    int orientation = 0; ///< 1 to 8; 0 leaves the one that is there
    bool withoutCoordinates = false;
    /// Texts of programs that left no word about their bytes, in UTF-8.
    QByteArray (*asUtf8)(const QByteArray &bytes) = nullptr;

    bool isNothing() const
    {
        return !caption && !people && !tags && !rating && !xmpCreated && !exifOriginal && orientation == 0 &&
               !withoutCoordinates;
    }
};

/// The module that knows the library for such texts, as a table: nothing of the library is seen beyond it, no
/// exception leaves it, and its functions may be called on any thread, one of which works at a time.
struct MetadataModule {
    /// What the file says, of which the picture itself may be left out. False where it cannot be read.
    bool (*read)(QByteArrayView file, Metadata &found);
    /// The same for the text of a file that lies beside a picture.
    bool (*readBeside)(QByteArrayView text, Metadata &found);
    /// The file with the change made; nothing where that cannot be done without losing something.
    QByteArray (*write)(QByteArrayView file, const MetadataChange &change);
    /// The same for the text of a file beside a picture, which may be empty.
    QByteArray (*writeBeside)(QByteArrayView text, const MetadataChange &change);
};

/// How the module gives its table away.
using MetadataEntrance = const MetadataModule *(*)();
inline constexpr char metadataModuleName[] = "metadata";
inline constexpr char metadataEntranceName[] = "quilleryMetadata";
