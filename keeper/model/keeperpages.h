// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"
#include "shell/core/page.h"
#include "shell/core/pagecontext.h"

/// What is printed of the keeper. Built only when it is looked at or printed.
namespace KeeperPages {

struct Options {
    enum Layout {
        List,      ///< a table for each kind
        TwoToAPage ///< with all that an entry holds, to be cut apart
    };

    Layout layout = List;
    bool hasSecrets = false; ///< else they are dots

    bool operator==(const Options &) const = default;
};

/// "Password Keeper": the entries, in the order in which they are given.
Page printout(const QList<KeeperEntry> &entries, const Options &options, const PageContext &context);

/// What stands on the emergency sheet beside the entries.
struct EmergencySheet {
    QList<KeeperEntry> entries{};
    QString papers{};       ///< where they lie
    QString call{};         ///< whom to call
    QString recoveryCode{}; ///< empty: a line to write it on
    bool hasSecrets = true;
    bool hasWiFiCodes = true; ///< where they can be made

    bool operator==(const EmergencySheet &) const = default;
};

/// "Emergency Sheet": for the safe, and for those left behind.
Page emergencySheet(const EmergencySheet &sheet, const PageContext &context);

} // namespace KeeperPages
