// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/layaside.h"
#include "budget/model/yearcomparison.h"
#include "shell/core/page.h"
#include "shell/core/pagecontext.h"

/// A year beside the year before on paper.
namespace YearsPages {

/// The table of `what`, and below it what to lay aside, if there is anything.
Page comparison(int year, const YearComparison &comparison, Compared what, const LayAside &aside,
                const PageContext &context);

} // namespace YearsPages
