// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

/// What the picture field of a record without a picture holds.
inline constexpr QLatin1StringView noPicture("**");

/// A picture of a record, by the record's name.
struct NamedPicture {
    QString name;
    QString stored; ///< the path as the record has it

    bool operator==(const NamedPicture &) const = default;
};

/// A picture that is to be made ready for paper.
struct PaperPicture {
    QString name{};
    QString stored{};         ///< the path as the record has it
    QSize place{540, 300};    ///< in dots, 300 to the inch; no larger than this is it read
    int turns = 0;            ///< quarters to the right, on top of the picture's own
    bool isFilling = false;   ///< what goes beyond the shape of its place is left out
    bool mayBeTurned = false; ///< by a quarter, where it lies and its place stands, or the other way round

    bool operator==(const PaperPicture &) const = default;
};

/// A picture that is ready for paper, in its place on a page.
struct ListedPicture {
    QString name;
    QString path; ///< a file that is quick to read; empty leaves the place empty
    QSize pixels; ///< of the picture as it was taken, or as it was turned and cut for its place

    bool operator==(const ListedPicture &) const = default;
};
