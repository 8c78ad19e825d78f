// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalyear.h"
#include "shell/core/clock.h"

#include <map>
#include <optional>
#include <set>

/// What days were like when a sitting at the journal began, and since: their earlier versions.
class JournalSitting
{
public:
    explicit JournalSitting(const Clock &clock)
        : m_clock(clock)
    {}

    /// The blocks that the day of `entry` gets in its year.
    JournalBlocks blocksFor(const JournalYear &year, const JournalEntry &entry);
    /// What came to the day in this sitting leaves no earlier version.
    void forgetLast(const JournalYear &year, QDate date);
    /// There is no way back to what the day was.
    void deleteForGood(QDate date);
    /// The days of a year are compared with what they are now.
    void forget(int year);
    /// Those of all years.
    void begin();
    /// Wipes all texts. The sitting goes on behind it: which days it has changed is known.
    void lock(const std::map<int, JournalYear> &years);

private:
    struct Day {
        JournalBlocks blocks{}; ///< when the sitting began
        std::optional<JournalEntry> entry{};
        QDateTime written{};                 ///< what an entry that is new gets
        std::optional<JournalEntry> last{};  ///< as it was since, before something was only taken away
        std::optional<JournalEntry> wiped{}; ///< as it was when it was deleted since
    };
    Day &dayOf(const JournalYear &year, QDate date);

    const Clock &m_clock;
    std::map<QDate, Day> m_days;
    std::set<QDate> m_changedBefore; ///< in this sitting, but before the journal was locked
};
