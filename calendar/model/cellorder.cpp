// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/cellorder.h"

#include "shell/core/timeofday.h"

#include <algorithm>

CellOrder::Rank CellOrder::rankOf(const DayLine &line)
{
    return rankOf(line.source, TimeOfDay::leading(line.isTyped() ? line.shown : line.original));
}

CellOrder::Rank CellOrder::rankOf(LineSource source, QTime time)
{
    if (source == LineSource::Holiday)
        return {Rank::Holiday};
    if (source == LineSource::Birthday)
        return {Rank::Birthday};
    return time.isValid() ? Rank{Rank::Timed, time} : Rank{};
}

int CellOrder::placeFor(const QList<DayLine> &lines, const Rank &rank)
{
    const auto place =
        std::ranges::find_if(lines, [&rank](const DayLine &line) { return rank < rankOf(line); });
    return int(place - lines.begin());
}
