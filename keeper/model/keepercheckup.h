// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keepersummary.h"
#include "shell/core/programstate.h"

/// What should be looked after in the keeper, found without opening a secret.
namespace KeeperCheckup {

enum class Finding { Reused, Short, Old, Expiring, NoOneTimeCode };

/// Passwords with less are called short.
inline constexpr int enoughCharacters = 12;
/// Passwords that were set before so many years are called old.
inline constexpr int oldYears = 3;
inline constexpr int expiringDays = 90;

/// An entry, which a click opens, and what there is to say of it.
struct Line {
    QByteArray id{};
    QString title{};
    QString words{};

    bool operator==(const Line &) const = default;
};

struct Section {
    Finding finding = Finding::Reused;
    QString heading{}; ///< "Used more than once"
    QString advice{};
    QList<Line> lines{};
};

/// All five in their order, those without a line too. What lies in the trash or is damaged is left out.
QList<Section> of(const QList<KeeperSummary> &entries, QDate today, DateStyle style);

/// How many entries expire within `days` or have expired.
int expiring(const QList<KeeperSummary> &entries, QDate today, int days);

} // namespace KeeperCheckup
