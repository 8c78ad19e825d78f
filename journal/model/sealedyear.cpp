// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/sealedyear.h"

#include "storage/sealing/sealedrecords.h"

#include <QMultiHash>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

using Damage = SealedDamage::Kind;

constexpr QByteArrayView anyVersion("Quillery journal sealed ");
constexpr QByteArrayView keySign("QJOURNL");

/// As it stands in the file: its length, and the record.
void addRecord(QByteArray &bytes, const QByteArray &record)
{
    std::array<char, SealedReader::lengthBytes> length{};
    qToLittleEndian<quint32>(quint32(record.size()), length.data());
    bytes.append(length.data(), qsizetype(length.size()));
    bytes += record;
}

/// What is quickly told of a block, and of few others.
std::size_t signOf(QByteArrayView block)
{
    constexpr qsizetype enough = 64;
    return qHash(block.last(std::min(block.size(), enough)), std::size_t(block.size()));
}

QByteArray sealedText(QByteArrayView plain, const QByteArray &context, const SecretBytes &key)
{
    // As `sodium_pad` does, which takes its time over it so that nobody learns the length by that.
    constexpr qsizetype block = SealedReader::padding;
    QByteArray padded((plain.size() / block + 1) * block, '\0');
    std::ranges::copy(plain, padded.begin());
    padded[plain.size()] = '\x80';
    QByteArray sealed = SealedRecords::seal(padded, context, key);
    SecretBytes::wipe(padded);
    return sealed;
}

SealedBlocks::Nonce nonceOf(QByteArrayView record)
{
    SealedBlocks::Nonce nonce{};
    std::ranges::copy(record.first(qsizetype(nonce.size())), nonce.begin());
    return nonce;
}

} // namespace

bool SealedYear::isSealed(QByteArrayView bytes)
{
    // Where the line itself is damaged, what follows says it.
    return bytes.startsWith(firstLine) || isLater(bytes) ||
           (bytes.size() >= recordsAt && bytes.sliced(firstLine.size()).startsWith(keySign));
}

bool SealedYear::isLater(QByteArrayView bytes)
{
    if (!bytes.startsWith(anyVersion))
        return false;
    const QByteArrayView rest = bytes.sliced(anyVersion.size());
    return rest.first(std::max<qsizetype>(rest.indexOf('\r'), 0)).toInt() > 1;
}

QByteArrayView SealedYear::head(QByteArrayView bytes)
{
    const qsizetype start = std::min(firstLine.size(), bytes.size());
    return bytes.sliced(start, std::min(headLength, bytes.size() - start));
}

QByteArray SealedYear::withHead(const QByteArray &bytes, QByteArrayView head)
{
    const qsizetype records = std::min(recordsAt, bytes.size());
    return firstLine + head.toByteArray() + bytes.sliced(records);
}

SealedYear::SealedYear(int year, const QByteArray &bytes, const SecretBytes &key)
    : m_year(year)
    , m_bytes(bytes)
    , m_key(&key)
{
    SealedReader reader(year, bytes, key);
    reader.read(recordsAt);
    m_hasList = reader.hasList();
    m_list = reader.list();
    m_opened = reader.opened();
    m_pieces = reader.pieces();
    if (!m_hasList && !bytes.isEmpty())
        m_damage.push_back({Damage::List, {}});
    guessDates();
    choose();
    if (!isInOrder())
        tellMoved();
    compose();
}

bool SealedYear::isShut() const
{
    return !m_hasList && !m_pieces.empty() && std::ranges::none_of(m_pieces, &SealedPiece::isOpen);
}

QByteArrayView SealedYear::plainOf(const SealedPiece &piece) const
{
    return piece.isOpen() ? QByteArrayView(m_opened).sliced(piece.plainAt, piece.plainLength)
                          : QByteArrayView();
}

/// Its own bytes, not a copy of them.
QByteArray SealedYear::recordOf(const SealedPiece &piece) const
{
    return QByteArray::fromRawData(m_bytes.constData() + piece.at, piece.length);
}

SealedLabel SealedYear::labelOf(const SealedPiece &piece) const
{
    if (piece.isOpen())
        return SealedBlocks::labelOf(plainOf(piece));
    return piece.listed < 0 ? SealedLabel() : m_list[std::size_t(piece.listed)].label;
}

/// A record whose nonce is damaged is the one that the list names behind the record before it, when nothing
/// else is.
void SealedYear::guessDates()
{
    std::vector<bool> isSeen(m_list.size());
    for (const SealedPiece &piece : m_pieces) {
        if (piece.listed >= 0)
            isSeen[std::size_t(piece.listed)] = true;
    }
    int before = -1;
    for (SealedPiece &piece : m_pieces) {
        const std::size_t next = std::size_t(before) + 1; // 0 behind -1
        const bool isNext = next < isSeen.size() && !isSeen[next];
        if (!piece.isOpen() && piece.listed < 0 && isNext) {
            piece.listed = int(next);
            isSeen[next] = true;
        }
        before = piece.listed >= 0 ? piece.listed : before;
    }
    for (std::size_t line = 0; line < isSeen.size(); ++line) {
        if (isSeen[line])
            continue;
        m_missing.push_back(int(line));
        m_damage.push_back({Damage::Missing, m_list[line].label});
    }
}

/// Which records the plain form has. One that the list does not name shows where its day has no other.
void SealedYear::choose()
{
    std::set<SealedBlocks::Nonce> nonces; // without a list, the only sign of a double one
    std::vector<bool> isShown(m_list.size());
    std::vector<std::size_t> unlisted;
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        const SealedPiece &piece = m_pieces[i];
        if (!piece.isOpen()) {
            m_kept.push_back(i);
            m_damage.push_back({Damage::Unreadable, labelOf(piece)});
        } else if (piece.listed >= 0
                       ? bool(isShown[std::size_t(piece.listed)])
                       : !nonces.insert(nonceOf(QByteArrayView(m_bytes).sliced(piece.at))).second) {
            m_damage.push_back({Damage::Doubled, labelOf(piece)}); // the one is as good as the other
        } else if (piece.listed < 0 && m_hasList) {
            unlisted.push_back(i);
            m_damage.push_back({Damage::Unlisted, labelOf(piece)});
        } else {
            m_shown.push_back(i);
            if (piece.listed >= 0)
                isShown[std::size_t(piece.listed)] = true;
        }
    }
    for (const std::size_t i : unlisted) {
        const SealedLabel label = labelOf(m_pieces[i]);
        const bool isThere = std::ranges::any_of(
            m_shown, [&](std::size_t shown) { return labelOf(m_pieces[shown]) == label; });
        (isThere ? m_kept : m_shown).push_back(i);
    }
}

bool SealedYear::isInOrder() const
{
    return std::ranges::is_sorted(m_shown) &&
           std::ranges::is_sorted(m_shown, {}, [this](std::size_t i) { return m_pieces[i].listed; });
}

void SealedYear::tellMoved()
{
    const auto line = [this](std::size_t i) { return m_pieces[i].listed; };
    std::vector<std::size_t> listed;
    std::ranges::copy_if(m_shown, std::back_inserter(listed), [&](std::size_t i) { return line(i) >= 0; });
    std::vector<std::size_t> sorted = listed;
    std::ranges::sort(sorted, {}, line);
    for (std::size_t place = 0; place < listed.size(); ++place) {
        if (listed[place] != sorted[place])
            m_damage.push_back({Damage::Moved, labelOf(m_pieces[listed[place]])});
    }
    // Unlisted ones go where their date belongs.
    for (const std::size_t i : m_shown) {
        if (line(i) >= 0)
            continue;
        const QDate date = labelOf(m_pieces[i]).date;
        const auto behind = std::ranges::find_if(
            sorted, [&](std::size_t other) { return labelOf(m_pieces[other]).date > date; });
        sorted.insert(behind, i);
    }
    m_shown = sorted;
}

/// As a rule everything opened, in its order, behind our first line.
void SealedYear::compose()
{
    const bool hasHead =
        !m_shown.empty() && labelOf(m_pieces[m_shown.front()]).kind == SealedLabel::Kind::Head;
    qsizetype end = SealedBlocks::plainLine.size();
    const bool isWhole = !hasHead && std::ranges::all_of(m_shown, [&](std::size_t i) {
        const bool isNext = m_pieces[i].plainAt == end;
        end += m_pieces[i].plainLength;
        return isNext;
    });
    if (isWhole && end == m_opened.size()) {
        m_plain = m_opened;
        return;
    }
    m_plain.reserve(m_opened.size());
    if (!hasHead)
        m_plain += SealedBlocks::plainLine;
    for (const std::size_t i : m_shown)
        m_plain += plainOf(m_pieces[i]);
}

SealedYear::Item SealedYear::sealedItem(QByteArrayView block) const
{
    Item item{SealedBlocks::labelOf(block),
              {},
              sealedText(block, SealedReader::contextOf(m_year, "entry"), *m_key),
              block};
    item.nonce = nonceOf(item.record);
    return item;
}

std::vector<SealedYear::Item> SealedYear::itemsOf(QByteArrayView plain) const
{
    const auto textOf = [this](std::size_t i) { return plainOf(m_pieces[i]); };
    QMultiHash<std::size_t, std::size_t> former;
    for (auto i = m_shown.rbegin(); i != m_shown.rend(); ++i) // of the same texts the first is found first
        former.insert(signOf(textOf(*i)), *i);
    std::vector<Item> items;
    const std::vector<QByteArrayView> blocks = SealedBlocks::cut(plain);
    items.reserve(blocks.size());
    for (const QByteArrayView block : blocks) {
        const auto [first, end] = former.equal_range(signOf(block));
        const auto same = std::find_if(first, end, [&](std::size_t i) { return textOf(i) == block; });
        if (same == end) {
            items.push_back(sealedItem(block));
            continue;
        }
        const QByteArray record = recordOf(m_pieces[*same]);
        items.push_back({SealedBlocks::labelOf(block), nonceOf(record), record, block});
        former.erase(same);
    }
    return items;
}

/// What does not show goes on lying where it lay: behind what has its date or an earlier one. A record that
/// is missing goes on being missed until its day has another.
void SealedYear::keep(std::vector<Item> &items) const
{
    const auto put = [&items](Item item) {
        const auto behind = std::ranges::find_if(items, [&item](const Item &other) {
            return !item.label.date.isValid() ? false : other.label.date > item.label.date;
        });
        items.insert(behind, std::move(item));
    };
    for (const int line : m_missing) {
        const SealedBlocks::Listed &listed = m_list[std::size_t(line)];
        const bool hasOther =
            std::ranges::any_of(items, [&](const Item &item) { return item.label == listed.label; });
        if (!hasOther)
            put({listed.label, listed.nonce, {}});
    }
    for (const std::size_t i : m_kept) {
        const SealedPiece &piece = m_pieces[i];
        Item item{labelOf(piece), {}, recordOf(piece)};
        if (piece.listed >= 0)
            item.nonce = m_list[std::size_t(piece.listed)].nonce;
        put(std::move(item));
    }
}

QByteArray SealedYear::bytesOf(const std::vector<Item> &items, const QByteArray &head) const
{
    std::vector<SealedBlocks::Listed> list;
    list.reserve(items.size());
    qsizetype length = 0;
    for (const Item &item : items) {
        length += SealedReader::lengthBytes + item.record.size();
        if (item.nonce)
            list.push_back({item.label, *item.nonce});
    }
    const QByteArray sealedList =
        sealedText(SealedBlocks::encoded(list), SealedReader::contextOf(m_year, "list"), *m_key);
    QByteArray bytes;
    bytes.reserve(recordsAt + SealedReader::lengthBytes + sealedList.size() + length);
    bytes += firstLine;
    bytes += head;
    addRecord(bytes, sealedList);
    for (const Item &item : items) {
        if (!item.record.isEmpty())
            addRecord(bytes, item.record);
    }
    return bytes;
}

QByteArray SealedYear::changedTo(const QByteArray &plain, const QByteArray &head) const
{
    std::vector<Item> items = itemsOf(plain);
    keep(items);
    return bytesOf(items, head);
}

void SealedYear::change(const QByteArray &plain, const QByteArray &head)
{
    if (!m_kept.empty() || !m_missing.empty()) {
        *this = SealedYear(m_year, changedTo(plain, head), *m_key);
        return;
    }
    // Every record is a block of `plain` then. The list is of use for what does not open alone.
    const std::vector<Item> items = itemsOf(plain);
    QByteArray bytes = bytesOf(items, head);
    m_pieces.resize(items.size());
    m_shown.resize(items.size());
    qsizetype at = bytes.size();
    for (std::size_t i = items.size(); i-- > 0;) {
        const Item &item = items[i];
        at -= item.record.size();
        m_pieces[i] = {.at = at,
                       .length = item.record.size(),
                       .plainAt = item.block.data() - plain.constData(),
                       .plainLength = item.block.size()};
        m_shown[i] = i;
        at -= SealedReader::lengthBytes;
    }
    m_hasList = true;
    m_list.clear();
    m_damage.clear();
    m_opened = plain;
    m_plain = plain;
    m_bytes = bytes;
}

void SealedYear::wipe()
{
    m_plain = {};
    SecretBytes::wipe(m_opened);
    m_pieces.clear();
    m_shown.clear();
}

QByteArray SealedYear::sealed(int year, const QByteArray &plain, const QByteArray &head,
                              const SecretBytes &key)
{
    return SealedYear(year, {}, key).changedTo(plain, head);
}
