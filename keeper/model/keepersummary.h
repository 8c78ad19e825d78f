// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"

#include <QDateTime>

/// What the list shows of an entry: nothing secret. It is kept in memory while the keeper is open; its notes
/// are not, which may be long.
struct KeeperSummary {
    QByteArray id{};
    EntryKind kind = EntryKind::LogIn;
    QString title{};
    QString userName{};
    QString address{};
    QString member{};
    QStringList tags{};
    bool isFavourite = false;
    bool hasPassword = false;
    bool hasOneTimeSecret = false;
    QDate expires{};
    QDateTime changed{};
    QDateTime passwordChanged{};
    bool isTrashed = false;
    QDateTime trashedAt{};
    int damagedPlace = 0;      ///< the record that cannot be opened; 0: the entry is whole
    QDateTime shownVersion{};  ///< of the earlier version that stands in for a damaged one
    int lostPlace = 0;         ///< the record of that one, where it is known
    QByteArray passwordHash{}; ///< keyed, to find passwords that are used twice; empty without one
    int passwordLength = 0;

    bool operator==(const KeeperSummary &) const = default;
};
