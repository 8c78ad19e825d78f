// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/undostep.h"

#include <vector>

/// Several steps that are one for the person who did them.
namespace UndoSteps {

/// Takes all back, the last one first, or none; nothing to be taken back where there is none.
UndoStep joined(const QString &title, const std::vector<UndoStep> &steps);

} // namespace UndoSteps
