// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A car of the household as the list has it. Its slot, a record number of the list, names its files; two
/// cars may have the same name.
struct Vehicle {
    int slot = 0; ///< from 1; 0: none
    QString name;

    bool operator==(const Vehicle &) const = default;
};
