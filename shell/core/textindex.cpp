// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/textindex.h"

#include "storage/bytecase.h"
#include "storage/bytesearch.h"

#include <algorithm>
#include <array>

namespace {

constexpr char lineEnd = '\n';

/// A byte as it is searched: control characters, line feeds among them, count as blanks.
char searched(char byte)
{
    const char letter = ByteCase::filed(byte);
    return quint8(letter) < quint8(' ') ? ' ' : letter;
}

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// Whether a folded byte is part of a word.
bool isOfWord(char byte)
{
    return isDigit(byte) || (byte >= 'a' && byte <= 'z') || quint8(byte) >= 0xC0;
}

QByteArrayView trimmed(QByteArrayView bytes)
{
    if (const qsizetype zero = bytes.indexOf('\0'); zero >= 0)
        bytes.truncate(zero);
    return bytes.trimmed();
}

} // namespace

TextIndex::Words::Words(QStringView text)
{
    const auto folded = ByteCase::filed(text);
    if (!folded)
        return;
    QByteArray bytes = *folded;
    std::ranges::transform(bytes, bytes.begin(), [](char byte) {
        return byte == ',' || byte == ';' || quint8(byte) < quint8(' ') ? ' ' : byte;
    });
    for (const QByteArray &word : bytes.split(' ')) {
        if (!word.isEmpty())
            m_words.push_back(word);
    }
    std::ranges::stable_sort(m_words, std::ranges::greater(), &QByteArray::size);
}

void TextIndex::beginText()
{
    m_starts.push_back(quint32(m_bytes.size()));
}

void TextIndex::addLine(QByteArrayView bytes)
{
    bytes = trimmed(bytes);
    const qsizetype at = m_bytes.size();
    m_bytes.resize(at + bytes.size() + 1);
    char *end = std::ranges::transform(bytes, m_bytes.data() + at, searched).out;
    *end = lineEnd;
}

void TextIndex::addDigits(QByteArrayView bytes)
{
    bytes = trimmed(bytes);
    if (!std::ranges::all_of(bytes, isDigit))
        std::ranges::copy_if(bytes, std::back_inserter(m_bytes), isDigit);
    m_bytes.append(lineEnd);
}

void TextIndex::clear()
{
    m_bytes.clear();
    m_starts.clear();
}

void TextIndex::squeeze()
{
    m_bytes.squeeze();
    m_starts.shrink_to_fit();
}

qsizetype TextIndex::memoryUsed() const
{
    return m_bytes.capacity() + qsizetype(m_starts.capacity() * sizeof(m_starts.front()));
}

void TextIndex::find(const Words &words, const std::function<bool(const Hit &)> &visit) const
{
    if (words.isEmpty())
        return;
    const char *const begin = m_bytes.constData();
    const char *const end = begin + m_bytes.size();
    const QByteArray &rarest = words.m_words.front();
    std::size_t text = 0;
    for (const char *at = begin; (at = ByteSearch::find(at, end, rarest));) {
        while (text + 1 < m_starts.size() && begin + m_starts[text + 1] <= at)
            ++text;
        const char *const textEnd = text + 1 < m_starts.size() ? begin + m_starts[text + 1] : end;
        Hit hit{int(text), WholeWordOfTitle, 0};
        if (judge({begin + m_starts[text], textEnd}, words, hit) && !visit(hit))
            return;
        at = textEnd;
    }
}

/// Whether all words stand in `text`; how good a hit it is.
bool TextIndex::judge(QByteArrayView text, const Words &words, Hit &hit) const
{
    const char *worst = text.data();
    for (const QByteArray &word : words.m_words) {
        const Place place = bestPlace(text, word);
        if (!place.at)
            return false;
        if (place.rank > hit.rank) {
            hit.rank = place.rank;
            worst = place.at;
        }
    }
    hit.line = int(std::count(text.data(), worst, lineEnd));
    return true;
}

TextIndex::Place TextIndex::bestPlace(QByteArrayView text, const QByteArray &word) const
{
    const char *const begin = text.data();
    const char *const end = begin + text.size();
    const char *titleEnd = nullptr;
    Place best;
    for (const char *at = begin; (at = ByteSearch::find(at, end, word)); ++at) {
        if (!titleEnd)
            titleEnd = std::find(begin, end, lineEnd);
        const bool isStart = at == begin || !isOfWord(at[-1]) || !isOfWord(word.front());
        Rank rank = Inside;
        if (isStart && at < titleEnd)
            rank = isOfWord(at[word.size()]) ? WordOfTitle : WholeWordOfTitle; // every line has its end
        else if (isStart)
            rank = Word;
        if (!best.at || rank < best.rank)
            best = {rank, at};
        if (best.rank == WholeWordOfTitle)
            break;
    }
    return best;
}
