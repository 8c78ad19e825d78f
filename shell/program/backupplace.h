// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/place.h"
#include "shell/program/functions.h"

#include <optional>

/// Where another window leads in the one for backups: to one of its sides, with one function chosen there.
namespace BackupPlace {

enum class Side { BackUp, Restore };

/// Without a function, all are chosen.
inline Place of(Side side, std::optional<Function> function = {})
{
    return {.record = int(function.value_or(Function::Backup)) + 1, .row = int(side)};
}

inline Side side(const Place &place)
{
    return place.row == int(Side::Restore) ? Side::Restore : Side::BackUp;
}

/// None: all of them.
inline std::optional<Function> function(const Place &place)
{
    const auto named = Function(place.record - 1);
    return place.record < 1 || named == Function::Backup ? std::nullopt : std::optional(named);
}

} // namespace BackupPlace
