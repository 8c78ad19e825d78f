// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalsitting.h"

#include "journal/model/journalform.h"
#include "storage/sealing/secretbytes.h"

#include <algorithm>

namespace {

/// Whether `now` is what `before` was, and something is gone from it at one place.
bool isCutFrom(const JournalEntry &before, const JournalEntry &now)
{
    if (now.tags.size() > before.tags.size() || now.pictures.size() > before.pictures.size() ||
        now.text.size() >= before.text.size())
        return false;
    const QString &text = now.text;
    const auto begin = std::ranges::mismatch(text, before.text).in1 - text.begin();
    const auto end = std::mismatch(text.rbegin(), text.rend(), before.text.rbegin()).first - text.rbegin();
    return begin + end >= text.size();
}

} // namespace

/// Of a day that was changed before the journal was locked, only the year knows what it was like.
JournalSitting::Day &JournalSitting::dayOf(const JournalYear &year, QDate date)
{
    const auto known = m_days.find(date);
    if (known != m_days.end())
        return known->second;
    Day day{.blocks = year.blocksOf(date), .entry = year.entry(date, JournalBlock::Entry)};
    day.last = day.entry;
    if (m_changedBefore.contains(date)) {
        day.entry = year.entry(date, JournalBlock::Earlier);
        day.blocks.clear();
        if (day.entry) {
            day.blocks.push_back(JournalForm::block(*day.entry, JournalBlock::Entry));
            if (!day.last || isCutFrom(*day.entry, *day.last))
                day.last = day.entry;
        }
    }
    day.written = day.entry ? day.entry->written : m_clock.now();
    return m_days.emplace(date, day).first->second;
}

JournalBlocks JournalSitting::blocksFor(const JournalYear &year, const JournalEntry &entry)
{
    Day &day = dayOf(year, entry.date);
    JournalEntry now = entry;
    if (!now.written.isValid())
        now.written = day.written;
    now = JournalForm::tidied(now);
    if (day.entry && now == *day.entry)
        return day.blocks;
    std::optional<JournalEntry> earlier = day.entry;
    JournalBlocks blocks;
    if (now.isEmpty()) {
        earlier = day.wiped = day.last;
    } else {
        if (!day.last || !isCutFrom(*day.last, now))
            day.last = now;
        if (day.wiped == now)
            day.wiped.reset();
        if (day.wiped)
            earlier = day.wiped;
        blocks.push_back(JournalForm::block(now, JournalBlock::Entry));
    }
    if (earlier)
        blocks.push_back(JournalForm::block(*earlier, JournalBlock::Earlier));
    else
        std::ranges::copy_if(day.blocks, std::back_inserter(blocks),
                             [](const JournalBlock &block) { return block.kind == JournalBlock::Earlier; });
    return blocks;
}

void JournalSitting::forgetLast(const JournalYear &year, QDate date)
{
    Day &day = dayOf(year, date);
    day.last = day.wiped ? day.wiped : day.entry;
}

void JournalSitting::deleteForGood(QDate date)
{
    m_days[date] = {.blocks = {}, .entry = {}, .written = m_clock.now()};
}

void JournalSitting::forget(int year)
{
    std::erase_if(m_days, [year](const auto &day) { return day.first.year() == year; });
}

void JournalSitting::begin()
{
    m_days.clear();
    m_changedBefore.clear();
}

void JournalSitting::lock(const std::map<int, JournalYear> &years)
{
    for (auto &[date, day] : m_days) {
        const auto year = years.find(date.year());
        if (year != years.end() && year->second.blocksOf(date) != day.blocks)
            m_changedBefore.insert(date);
        for (std::optional<JournalEntry> *entry : {&day.entry, &day.last, &day.wiped}) {
            if (*entry)
                SecretBytes::wipe((*entry)->text);
        }
        for (JournalBlock &block : day.blocks)
            SecretBytes::wipe(block.bytes);
    }
    m_days.clear();
}
