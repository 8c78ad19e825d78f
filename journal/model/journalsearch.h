// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/foldedyear.h"
#include "journal/model/journal.h"
#include "journal/model/journalhit.h"

#include <map>

/// The search over all years of a journal, as one types: the years are read and folded one at a time, and
/// further letters are looked for only among the hits before.
class JournalSearch
{
public:
    /// So many hits are shown at most.
    static constexpr int mostHits = 300;

    explicit JournalSearch(Journal &journal);

    /// Looks for what was typed in all years read so far.
    void setQuestion(const QString &typed);
    const JournalQuestion &question() const { return m_question; }
    /// Nothing is looked for.
    bool isEmpty() const { return m_question.isEmpty(); }
    /// Reads one more year, of those not read yet the nearest to `nearest`, and looks there. False when all
    /// are read.
    bool step(int nearest);
    /// The dates of the hits, the latest first. They follow what was changed since.
    QList<QDate> dates();
    int count() const;
    bool isAtLimit() const { return count() > mostHits; }
    /// One of them as it is shown.
    JournalHit hit(QDate date);
    /// The first of the hits as they are shown.
    QList<JournalHit> hits();

    /// Wipes and gives back all that was read.
    void clear();
    /// Bytes held, room for growth included.
    qsizetype memoryUsed() const;

private:
    struct Year {
        qint64 revision = -1;
        FoldedYear folded{};
    };

    void look(int number, Year &year);

    Journal &m_journal;
    std::map<int, Year> m_years;
    JournalQuestion m_question;
};
