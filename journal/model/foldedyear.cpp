// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/foldedyear.h"

#include "journal/model/journalfold.h"
#include "storage/bytesearch.h"
#include "storage/foldedtext.h"
#include "storage/sealing/secretbytes.h"

#include <algorithm>
#include <utility>

FoldedYear::FoldedYear(const JournalBlocks &blocks)
{
    qsizetype size = 0;
    qsizetype longest = 0;
    for (const JournalBlock &block : blocks) {
        if (block.kind != JournalBlock::Entry)
            continue;
        size += block.bytes.size();
        longest = std::max(longest, block.bytes.size());
    }
    m_folded.reserve(size + size / 64 + FoldedText::mostGrowth * longest);
    m_items.reserve(blocks.size());
    for (const JournalBlock &block : blocks) {
        if (block.kind != JournalBlock::Entry)
            continue;
        Item item{.date = block.date, .begin = quint32(m_folded.size())};
        item.tags = quint32(JournalFold::append(m_folded, block));
        item.end = quint32(m_folded.size());
        // Two entries of a day are one.
        if (!m_items.empty() && m_items.back().date == item.date)
            m_items.back().end = item.end;
        else
            m_items.push_back(item);
    }
    m_folded.squeeze();
    m_items.shrink_to_fit();
}

FoldedYear &FoldedYear::operator=(FoldedYear &&other) noexcept
{
    wipe();
    m_folded = std::exchange(other.m_folded, {});
    m_items = std::move(other.m_items);
    m_hits = std::move(other.m_hits);
    m_isAsked = other.m_isAsked;
    return *this;
}

void FoldedYear::wipe()
{
    SecretBytes::wipe(m_folded);
}

void FoldedYear::ask(const JournalQuestion &question, bool isNarrower)
{
    const bool isAmongHits = m_isAsked && isNarrower;
    m_isAsked = true;
    if (m_items.empty() || !question.mayBeIn(m_items.front().date.year()))
        m_hits.clear();
    else if (isAmongHits)
        std::erase_if(m_hits, [&](quint32 hit) { return !isHit(question, m_items[hit]); });
    else
        askAll(question);
}

void FoldedYear::forget()
{
    m_isAsked = false;
    m_hits.clear();
}

bool FoldedYear::isHit(const JournalQuestion &question, const Item &item, int known) const
{
    const QByteArrayView bytes = QByteArrayView(m_folded).sliced(item.begin, item.end - item.begin);
    const std::vector<QByteArray> &words = question.words();
    return (!question.hasTags() || question.areThere(bytes.sliced(item.tags - item.begin))) &&
           std::all_of(words.begin() + known, words.end(), [bytes](const QByteArray &word) {
               return ByteSearch::find(bytes.begin(), bytes.end(), word) != nullptr;
           });
}

void FoldedYear::askAll(const JournalQuestion &question)
{
    m_hits.clear();
    if (question.words().empty()) {
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            if (isHit(question, m_items[i]))
                m_hits.push_back(quint32(i));
        }
        return;
    }
    const char *const begin = m_folded.constData();
    const char *const end = begin + m_folded.size();
    const QByteArray &longest = question.words().front();
    std::size_t item = 0;
    for (const char *at = begin; (at = ByteSearch::find(at, end, longest));) {
        while (begin + m_items[item].end <= at)
            ++item;
        const char *const itemEnd = begin + m_items[item].end;
        // It may begin at the end of an entry, and go on in the next.
        if (at + longest.size() <= itemEnd && isHit(question, m_items[item], 1))
            m_hits.push_back(quint32(item));
        at = itemEnd;
    }
}

qsizetype FoldedYear::memoryUsed() const
{
    return m_folded.capacity() + qsizetype(m_items.capacity() * sizeof(Item)) +
           qsizetype(m_hits.capacity() * sizeof(quint32));
}
