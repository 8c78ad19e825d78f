// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/sealedreader.h"

#include "storage/sealing/sealedrecords.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <optional>
#include <unordered_set>

namespace {

/// What a record has beside its padded text.
constexpr qsizetype overhead = SealedRecords::nonceLength + SealedRecords::tagLength;

/// What `sodium_unpad` says, of bytes that are known to be right: it need not take the same time for all of
/// them. -1: there is no padding.
qsizetype unpaddedLength(std::span<const char> padded)
{
    const std::size_t last = padded.size() - std::min<std::size_t>(padded.size(), SealedReader::padding);
    for (std::size_t at = padded.size(); at > last; --at) {
        if (padded[at - 1] != 0)
            return padded[at - 1] == '\x80' ? qsizetype(at - 1) : -1;
    }
    return -1;
}

quint64 beginOf(const char *nonce)
{
    quint64 begin = 0;
    std::memcpy(&begin, nonce, sizeof begin);
    return begin;
}

} // namespace

QByteArray SealedReader::contextOf(int year, QByteArrayView kind)
{
    return "Quillery journal 1 " + QByteArray::number(year).rightJustified(4, '0') + ' ' + kind.toByteArray();
}

SealedReader::SealedReader(int year, const QByteArray &bytes, const SecretBytes &key)
    : m_bytes(bytes)
    , m_key(key)
    , m_listContext(contextOf(year, "list"))
    , m_entryContext(contextOf(year, "entry"))
{}

void SealedReader::read(qsizetype at)
{
    m_opened.resize(std::max<qsizetype>(m_bytes.size(), 0) + SealedBlocks::plainLine.size());
    std::ranges::copy(SealedBlocks::plainLine, m_opened.begin());
    m_openedLength = SealedBlocks::plainLine.size();
    if (at < m_bytes.size())
        at = readList(at);
    m_pieces.reserve(m_list.size());
    while (at < m_bytes.size())
        at = readRecord(at);
    m_opened.truncate(m_openedLength);
}

/// The length that a record at `at` says it has; -1 where there is none.
qsizetype SealedReader::lengthAt(qsizetype at) const
{
    return at + lengthBytes <= m_bytes.size() ? qFromLittleEndian<quint32>(m_bytes.constData() + at) : -1;
}

/// Whether a whole record of ours of this length can stand at `at`.
bool SealedReader::isPlausible(qsizetype at, qsizetype length) const
{
    return length >= overhead + padding && (length - overhead) % padding == 0 &&
           length <= m_bytes.size() - at - lengthBytes;
}

/// Whether `end` is the end of everything, or the beginning of what can be a record.
bool SealedReader::isFollowed(qsizetype end) const
{
    return end == m_bytes.size() || isPlausible(end, lengthAt(end));
}

/// The next place from `at` on where a record stands that opens; the end of everything where there is none.
qsizetype SealedReader::nextOpening(qsizetype at)
{
    if (at <= m_nextOpening && at >= m_openingSought)
        return m_nextOpening;
    m_openingSought = at;
    for (; at < m_bytes.size(); ++at) {
        const qsizetype length = lengthAt(at);
        qsizetype used = 0;
        if (isPlausible(at, length) &&
            opens(QByteArrayView(m_bytes).sliced(at + lengthBytes, length), m_entryContext, room(), used))
            break;
    }
    m_nextOpening = at;
    return at;
}

/// What is not yet taken of the memory for what opens.
std::span<char> SealedReader::room()
{
    return {m_opened.data() + m_openedLength, std::size_t(m_opened.size() - m_openedLength)};
}

bool SealedReader::opens(QByteArrayView record, const QByteArray &context, std::span<char> plain,
                         qsizetype &length) const
{
    const qsizetype paddedLength = record.size() - overhead;
    if (paddedLength < 0 || qsizetype(plain.size()) < paddedLength ||
        !SealedRecords::open(record, context, m_key, plain.first(std::size_t(paddedLength))))
        return false;
    length = unpaddedLength(plain.first(std::size_t(paddedLength)));
    return length >= 0;
}

bool SealedReader::readListAs(qsizetype at, qsizetype length)
{
    QByteArray plain(length, Qt::Uninitialized);
    qsizetype used = 0;
    if (!opens(QByteArrayView(m_bytes).sliced(at + lengthBytes, length), m_listContext,
               {plain.data(), std::size_t(plain.size())}, used))
        return false;
    m_hasList = true;
    m_list = SealedBlocks::decoded(QByteArrayView(plain).first(used));
    return true;
}

/// Reads the list, and says where it ends. What is none, and stands where it should be, is passed over only
/// where it can be nothing else.
qsizetype SealedReader::readList(qsizetype at)
{
    const qsizetype said = lengthAt(at);
    const bool isSound = isPlausible(at, said);
    if (isSound && readListAs(at, said))
        return at + lengthBytes + said;
    const qsizetype next = nextOpening(at + 1);
    if (isPlausible(at, next - at - lengthBytes) && readListAs(at, next - at - lengthBytes))
        return next;
    if (isSound && (readRecordAs(at, said) || isFollowed(at + lengthBytes + said)))
        return at + lengthBytes + said;
    return at;
}

int SealedReader::lineOf(QByteArrayView nonce) const
{
    const auto isIt = [nonce](const SealedBlocks::Listed &listed) {
        return std::memcmp(listed.nonce.data(), nonce.data(), listed.nonce.size()) == 0;
    };
    // As a rule it is the line behind that of the record before.
    const auto expected = m_pieces.empty() ? 0 : std::size_t(m_pieces.back().listed + 1);
    if (expected < m_list.size() && isIt(m_list[expected]))
        return int(expected);
    const auto found = std::ranges::find_if(m_list, isIt);
    return found == m_list.end() ? -1 : int(found - m_list.begin());
}

bool SealedReader::readRecordAs(qsizetype at, qsizetype length)
{
    SealedPiece piece{.at = at + lengthBytes, .length = length};
    const QByteArrayView record = QByteArrayView(m_bytes).sliced(piece.at, length);
    if (!opens(record, m_entryContext, room(), piece.plainLength))
        return false;
    piece.plainAt = m_openedLength;
    piece.listed = lineOf(record.first(SealedRecords::nonceLength));
    m_openedLength += piece.plainLength;
    m_pieces.push_back(piece);
    return true;
}

/// Reads what stands at `at`, and says where the next record begins.
qsizetype SealedReader::readRecord(qsizetype at)
{
    const qsizetype said = lengthAt(at);
    if (isPlausible(at, said) && readRecordAs(at, said))
        return at + lengthBytes + said;
    const qsizetype end = endOfDamaged(at);
    // It may be its length alone that is damaged.
    if (isPlausible(at, end - at - lengthBytes) && readRecordAs(at, end - at - lengthBytes))
        return end;
    addDamaged(at, end);
    return end;
}

void SealedReader::addDamaged(qsizetype at, qsizetype end)
{
    SealedPiece piece;
    piece.at = end - at > lengthBytes ? at + lengthBytes : at;
    piece.length = end - piece.at;
    if (piece.length >= SealedRecords::nonceLength)
        piece.listed = lineOf(QByteArrayView(m_bytes).sliced(piece.at, SealedRecords::nonceLength));
    m_pieces.push_back(piece);
}

qsizetype SealedReader::endOfDamaged(qsizetype at)
{
    if (const qsizetype listed = nextListed(at); listed >= 0)
        return listed;
    const qsizetype said = lengthAt(at);
    return isPlausible(at, said) && isFollowed(at + lengthBytes + said) ? at + lengthBytes + said
                                                                        : nextOpening(at + 1);
}

/// The next place behind `at` at which a record stands that the list names; -1: none.
qsizetype SealedReader::nextListed(qsizetype at)
{
    if (!m_hasPlaces)
        findPlaces();
    const auto next = std::ranges::upper_bound(m_places, at);
    return next == m_places.end() ? -1 : *next;
}

void SealedReader::findPlaces()
{
    m_hasPlaces = true;
    std::unordered_set<quint64> begins;
    for (const SealedBlocks::Listed &listed : m_list)
        begins.insert(beginOf(listed.nonce.data()));
    const qsizetype last = m_bytes.size() - SealedRecords::nonceLength;
    for (qsizetype at = lengthBytes; !begins.empty() && at <= last; ++at) {
        if (begins.contains(beginOf(m_bytes.constData() + at)) &&
            lineOf(QByteArrayView(m_bytes).sliced(at, SealedRecords::nonceLength)) >= 0)
            m_places.push_back(at - lengthBytes);
    }
}
