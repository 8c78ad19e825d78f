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

/// A picture that is ready for paper, in its place on a page.
struct ListedPicture {
    QString name;
    QString path; ///< a file that is quick to read; empty leaves the place empty
    QSize pixels; ///< of the picture as it was taken

    bool operator==(const ListedPicture &) const = default;
};
