// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagecontext.h"

/// The sheet with the recovery code of password control, for a place away from the computer.
Page recoveryPage(const QString &code, const PageContext &context);
