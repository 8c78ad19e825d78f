// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/settings.h"

struct Program;

/// Removal and restoration of the top toolbar, which all windows share.
namespace TopToolbar {

/// Whether the record says that it is removed.
bool isRemoved(const Program &program, const TextSetting &setting);

/// Writes the state to the shared record and the weight tracker's copy, and tells every window. False when
/// one of the two could not be written.
[[nodiscard]] bool setRemoved(Program &program, bool removed);

} // namespace TopToolbar
