// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keepersummary.h"

/// Which entries the list shows.
struct KeeperFilter {
    enum What { All, Favourites, Expiring, Kind, Member, Tag, Trash };

    /// An entry counts as expiring this many days before, and from then on.
    static constexpr int expiringWithin = 90;

    What what = All;
    EntryKind kind = EntryKind::LogIn; ///< of `Kind`
    QString word;                      ///< the member or the tag

    /// What was deleted stands in the trash alone.
    bool passes(const KeeperSummary &entry, QDate today) const;

    bool operator==(const KeeperFilter &) const = default;
};

/// What can be chosen from: the kinds, members and tags that the entries have.
namespace KeeperFilters {

/// In the order of the list. Members and tags stand in the order of the alphabet, and nothing is offered that
/// no entry has.
QList<KeeperFilter> of(const QList<KeeperSummary> &entries);

/// The tags or members that the entries have, each once, in the order of the alphabet.
QStringList tags(const QList<KeeperSummary> &entries);
QStringList members(const QList<KeeperSummary> &entries);

/// "All entries", "Log-ins", "Of Anne" and so on.
QString caption(const KeeperFilter &filter);

} // namespace KeeperFilters
