// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannerday.h"

bool PlannerDay::isRowEmpty(std::size_t row) const
{
    return AnsiText::trimmedBlanks(times[row]).isEmpty() && AnsiText::trimmedBlanks(texts[row]).isEmpty();
}

bool PlannerDay::isEmpty() const
{
    return entryCount() == 0;
}

int PlannerDay::entryCount() const
{
    int entries = 0;
    for (std::size_t row = 0; row < rowCount; ++row)
        entries += isRowEmpty(row) ? 0 : 1;
    return entries;
}
