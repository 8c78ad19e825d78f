// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QStringList>

/// A picture of an entry, as the entry names it.
struct JournalPicture {
    QString path; ///< relative to the data folder where it is inside
    QString caption{};

    bool operator==(const JournalPicture &) const = default;
};

/// What was written for one day.
struct JournalEntry {
    QDate date;
    QDateTime written{}; ///< when it was begun, to the minute; invalid where nobody knows
    QStringList tags{};
    QList<JournalPicture> pictures{};
    QStringList otherLines{}; ///< what its file says of it beyond that, kept as it is
    QString text{};           ///< lines end with '\n'

    /// Neither text beyond blanks nor tag nor picture: no entry at all.
    bool isEmpty() const { return tags.isEmpty() && pictures.isEmpty() && text.trimmed().isEmpty(); }

    bool operator==(const JournalEntry &) const = default;
};
