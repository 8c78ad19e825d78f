// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalblock.h"
#include "journal/model/journalentry.h"
#include "journal/model/sealedyear.h"
#include "storage/filestamp.h"

#include <map>
#include <optional>

/// A year of the journal in memory, and what of it the disk does not have yet.
class JournalYear
{
public:
    enum class State {
        Missing, ///< there is no file yet
        Open,
        Locked,    ///< sealed, and the seal is closed
        ForReading ///< not to be written to; `whyReadOnly` says why
    };

    State state = State::Missing;
    QString whyReadOnly{};              ///< a sentence for the user
    FileStamp stamp{};                  ///< of the file as it was read or written last
    std::vector<SealedDamage> damage{}; ///< what of a sealed year does not open as it should
    qint64 revision = 0; ///< changes with the blocks; each reading begins where no other has been

    bool mayBeWritten() const { return state == State::Missing || state == State::Open; }

    const JournalBlocks &blocks() const { return m_blocks; }
    void setBlocks(JournalBlocks blocks);

    /// The blocks of a date, of any kind.
    JournalBlocks blocksOf(QDate date) const;
    /// The blocks of a date that are of this kind as one entry; nothing where they say nothing.
    std::optional<JournalEntry> entry(QDate date, JournalBlock::Kind kind) const;
    /// The entry of a date without when it was written.
    std::optional<JournalEntry> untimed(QDate date) const;
    /// The dates that have an entry, ascending.
    QList<QDate> dates() const;

    /// Puts `blocks` in the place of those that the date has.
    void replace(QDate date, const JournalBlocks &blocks);
    bool isModified() const { return !m_unsaved.empty(); }
    bool isModified(QDate date) const { return m_unsaved.contains(date); }
    QList<QDate> modifiedDates() const;
    void saved() { m_unsaved.clear(); }

    /// Puts what is not saved into `there`, the same year as the disk has it now, and becomes that. Where a
    /// date was changed on both sides, what is there stands under what is here.
    void mergeInto(JournalYear there);

    /// Overwrites all texts with zeros; there is nothing in it then.
    void wipe();

private:
    JournalBlocks::const_iterator find(QDate date) const;

    JournalBlocks m_blocks;
    std::map<QDate, JournalBlocks> m_unsaved; ///< changed dates, with the blocks that the disk has of them
};
