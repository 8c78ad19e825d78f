// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/daynote.h"
#include "shell/core/liveline.h"

#include <QDate>
#include <QList>

#include <optional>

class DataFolder;

/// What the photo album has to say on the main menu and about dates, from its two files alone: no picture is
/// looked at.
namespace AlbumNews {

/// "12 pictures are missing" where some were not there when they were last looked for, else "On this day in
/// 2019: 3 pictures", else "2,000 pictures in 14 albums"; nothing without pictures.
std::optional<LiveLine> liveLine(const DataFolder &folder, QDate today);

/// For each of the days `from` to `to` that has pictures of earlier years: "3 pictures from 2019".
QList<DayNote> dayNotes(const DataFolder &folder, QDate from, QDate to);

} // namespace AlbumNews
