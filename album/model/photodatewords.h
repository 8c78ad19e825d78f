// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photodate.h"
#include "shell/core/programstate.h"

#include <QString>

#include <optional>

/// Dates of pictures as people type and read them: "about 1974", "summer 1982", "the 1980s", "before 1950",
/// "1970 to 1975", exact days and moments.
namespace PhotoDateWords {

/// The date that `text` means; "summer 82" is of the past. None for an empty text; nothing where it is no
/// date.
std::optional<PhotoDate> read(QStringView text, DateStyle style, QDate today);

/// The same for a search, in which a small number alone is none.
std::optional<PhotoDate> readSought(QStringView text, DateStyle style, QDate today);

/// "November 21, 2026, 2:03 PM", "about 1974"; empty for none, the text itself for one that means nothing
/// here.
QString words(const PhotoDate &date, DateStyle style);

/// The same without a time, as it stands over pictures of a day: "Without a Date" for none.
QString heading(const PhotoDate &date, DateStyle style);

/// Days by their Julian numbers; none where the last lies before the first.
struct Days {
    qint64 first = 1;
    qint64 last = 0;

    bool overlap(const Days &other) const
    {
        return first <= last && other.first <= other.last && first <= other.last && other.first <= last;
    }
};
/// The days that a date may mean, with what "about" may be off by.
Days mayMean(const PhotoDate &date);

/// Whether a picture of `date` may be of the time that is `sought`.
bool mayBe(const PhotoDate &date, const PhotoDate &sought);

/// The quiet refusal of what is no date.
QString refusal();

} // namespace PhotoDateWords
