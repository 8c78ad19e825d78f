// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagecontext.h"

/// The sheet with the recovery code of the journal, for a place away from the computer.
Page journalRecoverySheet(const QString &code, const PageContext &context);
