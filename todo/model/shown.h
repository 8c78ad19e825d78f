// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the work panel shows: a list, a view over all lists, or what a search finds.
struct Shown {
    enum Kind { Today, Coming, ByPerson, Done, List, Search };

    Kind kind = Today;
    int list = 0;    ///< of `List`
    QString words{}; ///< of `Search`

    bool operator==(const Shown &) const = default;
};
