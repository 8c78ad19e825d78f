// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QByteArrayView>
#include <QStringView>

/// The part of a stored date that returns every year. Dates are kept as they were typed, so this reads more
/// forms than a date box writes.
struct DayOfYear {
    int month = 0; ///< 1 to 12; 0 when the text names none
    int day = 0;   ///< 1 to 31; 0 when only the month is known

    bool operator==(const DayOfYear &) const = default;

    /// "Apr-21-1997", "21 April", "4/21/1997" (day first under `Other`), "1997-04-21", "April 1997",
    /// "04/1997". A number above 12 can only be a day. Month names are English, with three letters at least.
    static DayOfYear of(QStringView text, DateStyle style);
    /// The same of a text as the files have it.
    static DayOfYear of(QByteArrayView text, DateStyle style);

    /// The month that a month box holds: "Apr", "April" or "4"; 0 when it names none.
    static int monthTyped(QStringView text);
};
