// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagecontext.h"

/// What password control prints: whether a password is set, and which functions of this edition ask for it.
Page passwordPage(bool isPasswordSet, const ProtectedAreas &areas, const PageContext &context);
