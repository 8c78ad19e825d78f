// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"
#include "journal/model/journalquestion.h"

#include <utility>

/// An entry in which a question was found, as it is shown: a line of what stands there.
struct JournalHit {
    QDate date;
    QString context{};                              ///< without asterisks and the like
    QList<std::pair<qsizetype, qsizetype>> marks{}; ///< the words in it: where, and how long

    static JournalHit of(const JournalEntry &entry, const JournalQuestion &question);
    /// Where the words of the question stand in a whole text, and how long they are.
    static QList<std::pair<qsizetype, qsizetype>> places(const QString &text,
                                                         const JournalQuestion &question);

    bool operator==(const JournalHit &) const = default;
};
