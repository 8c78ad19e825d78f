// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/recurrence.h"

/// Recurrences, as tests name them.
namespace Recurrences {

inline Recurrence until(Recurrence::Kind kind, QDate beginning, QDate end, int interval = 1)
{
    Recurrence recurrence;
    recurrence.kind = kind;
    recurrence.beginning = beginning;
    recurrence.end = end;
    recurrence.interval = interval;
    return recurrence;
}

inline Recurrence times(Recurrence::Kind kind, QDate beginning, int occurrences, int interval = 1)
{
    Recurrence recurrence = until(kind, beginning, {}, interval);
    recurrence.end.reset();
    recurrence.occurrences = occurrences;
    return recurrence;
}

} // namespace Recurrences
