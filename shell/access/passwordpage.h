// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagecontext.h"

#include <QSet>

/// What password control prints: whether a password is set, which functions of this edition ask for it, and
/// behind which areas the files are `sealed`.
Page passwordPage(bool isPasswordSet, const ProtectedAreas &areas, const QSet<int> &sealed,
                  const PageContext &context);
