// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "planner/model/dayrecord.h"
#include "planner/model/plannerday.h"

#include <algorithm>

namespace {

/// The bytes as the record of a day.
void tryDay(QByteArrayView record)
{
    const PlannerDay day = plannerDayLayout.decode(record);
    require(!DayRecord::isSaved(record) || day.mark == PlannerDay::savedMark, "a saved day bears the mark");
    const QByteArray bytes = plannerDayLayout.encode(day);
    require(bytes.size() == plannerDayLayout.size(), "a day has the length of its fields");
    require(plannerDayLayout.decode(bytes) == day, "a day comes back");
    require(day.isEmpty() == (day.entryCount() == 0), "a day without entries is empty");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes = asBytes(data, size);
    tryDay(bytes.first(std::min<qsizetype>(bytes.size(), DayRecord::length)));
    return 0;
}
