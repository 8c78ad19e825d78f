// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"

#include <functional>

/// A page whose sheets are made one at a time, each as a page of its own: fifty thousand entries are never
/// held at once, and the first sheet is there as soon as the last.
struct PageSheets {
    int count = 1;
    std::function<Page(int sheet)> make; ///< counted from 0; the last one is closed
};
