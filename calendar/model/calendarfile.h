// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "storage/tabline.h"

#include <QByteArray>

/// The bytes of a calendar's file.
namespace CalendarFile {

inline constexpr QByteArrayView firstLine = "Quillery calendar 1";

/// What the bytes are by their first line.
TabLine::Form formOf(QByteArrayView bytes);

/// What they say as far as it can be read; an empty calendar, without a first month, where that is nothing.
WallCalendar read(QByteArrayView bytes);

/// The file of `calendar` in place of `former`, whose lines that cannot be read stay where they stand. Lines
/// that say the same as before keep their bytes.
QByteArray write(const WallCalendar &calendar, const QByteArray &former = {});

} // namespace CalendarFile
