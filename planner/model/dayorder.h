// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerday.h"

/// Where entries without AM or PM stand in a day. The numbers are those of the placement record.
enum class UntimedPlacement { Last = 0, First = 1 };

/// `day` with its entries packed and in time order: by a key of group, time text and text, without regard to
/// case. Entries without AM or PM come before all others or after them, in the same order among themselves.
PlannerDay inTimeOrder(const PlannerDay &day, UntimedPlacement placement);
