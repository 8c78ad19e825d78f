// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalyear.h"

#include "journal/model/journalform.h"
#include "storage/sealing/secretbytes.h"

#include <algorithm>

namespace {

using Blocks = JournalBlocks;

/// Those of `blocks` that are of this kind as one entry.
std::optional<JournalEntry> entryOf(const Blocks &blocks, JournalBlock::Kind kind,
                                    JournalEntry (*read)(const JournalBlock &) = JournalForm::entry)
{
    std::optional<JournalEntry> entry;
    for (const JournalBlock &block : blocks) {
        if (block.kind != kind)
            continue;
        const JournalEntry one = read(block);
        entry = entry ? JournalForm::joined(*entry, one) : one;
    }
    return entry && (!entry->isEmpty() || !entry->otherLines.isEmpty()) ? entry : std::nullopt;
}

/// `entry` with what `other` says beside its text and `base`, from which both come, did not.
JournalEntry withNewsOf(const JournalEntry &other, JournalEntry entry, const JournalEntry &base)
{
    const auto add = [](auto &list, const auto &others, const auto &former) {
        std::ranges::copy_if(others, std::back_inserter(list), [&](const auto &each) {
            return !list.contains(each) && !former.contains(each);
        });
    };
    add(entry.tags, other.tags, base.tags);
    add(entry.pictures, other.pictures, base.pictures);
    add(entry.otherLines, other.otherLines, base.otherLines);
    return JournalForm::tidied(entry);
}

JournalEntry merged(const JournalEntry &ours, const JournalEntry &theirs, const JournalEntry &base)
{
    if (theirs.text == base.text || ours.text.contains(theirs.text))
        return withNewsOf(theirs, ours, base);
    if (ours.text == base.text || theirs.text.contains(ours.text))
        return withNewsOf(ours, theirs, base);
    return JournalForm::joined(ours, theirs);
}

/// A date that was changed here and elsewhere since it was `base`.
Blocks merged(const Blocks &here, const Blocks &there, const Blocks &base)
{
    const auto ours = entryOf(here, JournalBlock::Entry);
    const auto theirs = entryOf(there, JournalBlock::Entry);
    const JournalEntry former = entryOf(base, JournalBlock::Entry).value_or(JournalEntry());
    const auto both = ours && theirs ? std::optional(merged(*ours, *theirs, former)) : std::nullopt;
    Blocks blocks;
    if (both && both != ours && both != theirs)
        blocks.push_back(JournalForm::block(*both, JournalBlock::Entry));
    else
        std::ranges::copy_if(ours && (!both || both == ours) ? here : there, std::back_inserter(blocks),
                             [](const JournalBlock &block) { return block.kind == JournalBlock::Entry; });
    const bool hasEarlier = entryOf(here, JournalBlock::Earlier).has_value();
    std::ranges::copy_if(hasEarlier ? here : there, std::back_inserter(blocks),
                         [](const JournalBlock &block) { return block.kind == JournalBlock::Earlier; });
    return blocks;
}

} // namespace

void JournalYear::setBlocks(JournalBlocks blocks)
{
    m_blocks = std::move(blocks);
    ++revision;
}

JournalBlocks::const_iterator JournalYear::find(QDate date) const
{
    return std::ranges::partition_point(m_blocks, [date](const JournalBlock &block) {
        return block.kind == JournalBlock::Loose || block.date < date;
    });
}

JournalBlocks JournalYear::blocksOf(QDate date) const
{
    JournalBlocks blocks;
    for (auto at = find(date); at != m_blocks.end() && at->date == date; ++at)
        blocks.push_back(*at);
    return blocks;
}

std::optional<JournalEntry> JournalYear::entry(QDate date, JournalBlock::Kind kind) const
{
    return entryOf(blocksOf(date), kind);
}

std::optional<JournalEntry> JournalYear::untimed(QDate date) const
{
    return entryOf(blocksOf(date), JournalBlock::Entry, JournalForm::untimed);
}

QList<QDate> JournalYear::dates() const
{
    QList<QDate> dates;
    for (const JournalBlock &block : m_blocks) {
        if (block.kind != JournalBlock::Entry || (!dates.isEmpty() && dates.last() == block.date))
            continue;
        const JournalForm::Parts parts = JournalForm::partsOf(block.bytes);
        if (!parts.body.trimmed().isEmpty() || !JournalForm::head(block).isEmpty())
            dates.append(block.date);
    }
    return dates;
}

void JournalYear::replace(QDate date, const JournalBlocks &blocks)
{
    const JournalBlocks former = blocksOf(date);
    if (former == blocks)
        return;
    const auto [unsaved, isFirst] = m_unsaved.try_emplace(date, former);
    if (!isFirst && unsaved->second == blocks)
        m_unsaved.erase(unsaved);
    const auto at = m_blocks.erase(find(date), find(date) + std::ptrdiff_t(former.size()));
    m_blocks.insert(at, blocks.begin(), blocks.end());
    ++revision;
}

void JournalYear::mergeInto(JournalYear there)
{
    // A file that is gone, or has been emptied, takes nothing along.
    if (there.m_blocks.empty())
        there.m_blocks = m_blocks;
    for (const auto &[date, base] : m_unsaved) {
        const Blocks ours = blocksOf(date);
        const Blocks theirs = there.blocksOf(date);
        const bool isChangedThere = theirs != base && theirs != ours;
        there.replace(date, isChangedThere ? merged(ours, theirs, base) : ours);
        there.m_unsaved[date] = theirs;
    }
    *this = std::move(there);
}

QList<QDate> JournalYear::modifiedDates() const
{
    QList<QDate> dates;
    for (const auto &[date, blocks] : m_unsaved)
        dates.append(date);
    return dates;
}

void JournalYear::wipe()
{
    for (JournalBlock &block : m_blocks)
        SecretBytes::wipe(block.bytes);
    for (auto &[date, blocks] : m_unsaved) {
        for (JournalBlock &block : blocks)
            SecretBytes::wipe(block.bytes);
    }
    m_unsaved.clear();
    setBlocks({});
}
