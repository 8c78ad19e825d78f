// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/place.h"

#include <QList>
#include <QString>

/// One thing that the search over everything found in a function.
struct SearchHit {
    QString title;   ///< "Josephine Holm"
    QString context; ///< a line of what stands around it: "12 Mill Lane, Bristol"
    Place place{};   ///< where it leads

    bool operator==(const SearchHit &) const = default;
};

/// What a function gives to the search over everything. It is made when somebody first searches and kept
/// while the program runs; it never makes or changes a file.
class SearchSource
{
public:
    SearchSource() = default;
    SearchSource(const SearchSource &) = delete;
    SearchSource &operator=(const SearchSource &) = delete;
    virtual ~SearchSource() = default;

    /// Reads what is new in the function's files, a few milliseconds at a time. False when nothing is left to
    /// read; until then `matches` finds in what has been read.
    virtual bool prepare() = 0;

    /// The best `most` hits of `text`, best first, without regard to upper and lower case. A text of blanks
    /// has none.
    virtual QList<SearchHit> matches(QStringView text, int most) const = 0;
};
