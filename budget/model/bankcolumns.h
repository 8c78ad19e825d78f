// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>

#include <optional>

/// Which columns of a bank's file hold what; -1: none does.
struct BankColumns {
    int date = -1;
    int amount = -1;
    int debit = -1;  ///< outgoing amounts, where they have a column of their own
    int credit = -1; ///< incoming ones
    int sign = -1;   ///< says of each amount whether it is outgoing
    QList<int> texts;
    bool hasHeading = false;
    int headingLine = 0; ///< number of the line that names the columns

    /// Found by the names in a heading or, without one, by what the cells of `lines` are.
    static BankColumns find(const QList<QStringList> &lines);

    bool isComplete() const { return date >= 0 && (amount >= 0 || debit >= 0); }
};

/// Whether a cell of the column `sign` says that the amount is outgoing; nothing where it says neither.
std::optional<bool> isOutgoing(const QString &cell);
