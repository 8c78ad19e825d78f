// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/functionrecords.h"

#include <QList>
#include <QString>

/// What differs between the records of a function here and in a copy.
struct RecordDifferences {
    enum Kind {
        OnlyThere, ///< it was deleted here, and can come back
        Changed,
        OnlyHere ///< it came since; nothing is ever deleted for that
    };
    struct Item {
        Kind kind = OnlyThere;
        QString key;
        QString title;

        bool operator==(const Item &) const = default;
    };

    int here = 0;  ///< records in all
    int there = 0; ///< the same of the copy
    /// Those of the copy in its order, then those that are only here.
    QList<Item> items;

    /// Compares them, each in one pass.
    static RecordDifferences of(const FunctionRecords &here, const FunctionRecords &there);
};
