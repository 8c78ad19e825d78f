// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalblock.h"
#include "journal/model/journalquestion.h"

#include <QByteArray>
#include <QDate>

#include <vector>

/// The entries of a year as they are searched, and those of them in which the last question was found.
class FoldedYear
{
public:
    FoldedYear() = default;
    explicit FoldedYear(const JournalBlocks &blocks);
    FoldedYear(FoldedYear &&) noexcept = default;
    FoldedYear &operator=(FoldedYear &&other) noexcept;
    FoldedYear(const FoldedYear &) = delete;
    FoldedYear &operator=(const FoldedYear &) = delete;
    ~FoldedYear() { wipe(); }

    /// Looks for `question`: only among the hits before where it is narrower than the question before.
    void ask(const JournalQuestion &question, bool isNarrower);
    /// Forgets the last question.
    void forget();

    std::size_t count() const { return m_hits.size(); }
    /// The dates of the hits, ascending.
    QDate hit(std::size_t at) const { return m_items[m_hits[at]].date; }

    /// Bytes held, room for growth included.
    qsizetype memoryUsed() const;

private:
    struct Item {
        QDate date;
        quint32 begin = 0;
        quint32 tags = 0; ///< where they begin
        quint32 end = 0;
    };

    void wipe();
    /// Whether the question is found in `item`, where its first `known` words stand.
    bool isHit(const JournalQuestion &question, const Item &item, int known = 0) const;
    void askAll(const JournalQuestion &question);

    QByteArray m_folded;
    std::vector<Item> m_items;
    std::vector<quint32> m_hits;
    bool m_isAsked = false;
};
