// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperindex.h"

#include "keeper/model/keeperkinds.h"
#include "keeper/model/keeperpayload.h"

#include <QByteArrayList>

#include <sodium.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <numeric>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char lineEnd = '\n';
const QDate epoch(1970, 1, 1);

void wipe(std::string &text)
{
    sodium_memzero(text.data(), text.size());
    text.clear();
    text.shrink_to_fit();
}

QDateTime timeOf(qint64 seconds)
{
    return seconds == 0 ? QDateTime() : QDateTime::fromSecsSinceEpoch(seconds).toUTC();
}

int characters(QByteArrayView utf8)
{
    return int(std::ranges::count_if(utf8, [](char byte) { return (uchar(byte) & 0xC0) != 0x80; }));
}

char foldedAscii(char byte)
{
    const char letter = byte >= 'A' && byte <= 'Z' ? char(byte + ('a' - 'A')) : byte;
    return uchar(letter) < uchar(' ') ? ' ' : letter;
}

/// Where `word` stands in `text` from `from` on; behind its end when it does not.
qsizetype indexOf(QByteArrayView text, QByteArrayView word, qsizetype from)
{
    const QByteArrayView rest = text.sliced(from);
#ifdef Q_OS_LINUX
    const void *found = memmem(rest.data(), std::size_t(rest.size()), word.data(), std::size_t(word.size()));
    return found ? from + (static_cast<const char *>(found) - rest.data()) : text.size();
#else
    const qsizetype found = rest.indexOf(word);
    return found < 0 ? text.size() : from + found;
#endif
}

bool contains(QByteArrayView text, QByteArrayView word)
{
    return indexOf(text, word, 0) < text.size();
}

QStringList split(const QString &tags)
{
    KeeperEntry entry;
    entry.setText(KeeperField::Tags, tags);
    return entry.tags();
}

} // namespace

/// The texts of an entry while they are gathered.
struct KeeperIndex::Texts {
    std::array<QByteArrayView, TextCount> shown;
    QByteArrayView notes;
};

KeeperIndex::KeeperIndex(QByteArrayView hashKey)
{
    std::ranges::copy(hashKey.first(std::min(hashKey.size(), qsizetype(m_hashKey.size()))),
                      m_hashKey.begin());
}

void KeeperIndex::clear()
{
    wipe(m_texts);
    wipe(m_folded);
    m_rows.clear();
    m_rows.shrink_to_fit();
    m_ordered = 0;
    m_dead = 0;
    sodium_memzero(m_hashKey.data(), m_hashKey.size());
}

QByteArray KeeperIndex::fold(QByteArrayView text)
{
    if (std::ranges::all_of(text, [](char byte) { return uchar(byte) < 0x80; })) {
        QByteArray folded(text.size(), Qt::Uninitialized);
        std::ranges::transform(text, folded.begin(), foldedAscii);
        return folded;
    }
    QString folded;
    for (const QChar character : QString::fromUtf8(text).normalized(QString::NormalizationForm_KD)) {
        if (character.category() == QChar::Mark_NonSpacing)
            continue;
        folded += character.category() == QChar::Other_Control ? QChar(u' ') : character;
    }
    return folded.toCaseFolded().replace(u'\u00df', "ss"_L1).toUtf8();
}

QByteArray KeeperIndex::passwordHash(QByteArrayView password) const
{
    QByteArray hash(qsizetype(hashLength), '\0');
    crypto_generichash(reinterpret_cast<unsigned char *>(hash.data()), hashLength,
                       reinterpret_cast<const unsigned char *>(password.data()), std::size_t(password.size()),
                       reinterpret_cast<const unsigned char *>(m_hashKey.data()), m_hashKey.size());
    return hash;
}

bool KeeperIndex::hasPassword(QByteArrayView password, QByteArrayView besides) const
{
    const QByteArray hash = passwordHash(password);
    return std::ranges::any_of(m_rows, [&hash, besides](const Row &row) {
        return row.hasPassword && row.passwordHash.size() == std::size_t(hash.size()) &&
               std::ranges::equal(row.passwordHash, hash) && !std::ranges::equal(row.id, besides);
    });
}

void KeeperIndex::note(Row &row, Texts &texts, quint8 id, QByteArrayView text) const
{
    switch (id) {
    case KeeperField::Kind:
        row.kind = KeeperKinds::kind(QString::fromUtf8(text));
        break;
    case KeeperField::Title:
        texts.shown[Title] = text;
        break;
    case KeeperField::UserName:
        texts.shown[UserName] = text;
        break;
    case KeeperField::Address:
        texts.shown[Address] = text;
        break;
    case KeeperField::Member:
        texts.shown[Member] = text;
        break;
    case KeeperField::Tags:
        texts.shown[Tags] = text;
        break;
    case KeeperField::Notes:
        texts.notes = text;
        break;
    case KeeperField::Expires:
        if (const QDate date = QDate::fromString(QString::fromUtf8(text), Qt::ISODate); date.isValid())
            row.expires = qint32(epoch.daysTo(date));
        break;
    case KeeperField::Favourite:
        row.isFavourite = !text.isEmpty();
        break;
    case KeeperPayload::passwordChangedField:
        row.passwordChanged = QDateTime::fromString(QString::fromUtf8(text), Qt::ISODate).toSecsSinceEpoch();
        break;
    default:
        break;
    }
}

void KeeperIndex::add(const Facts &facts, QByteArrayView payload)
{
    Row row;
    Texts texts;
    KeeperPayload::forEach(payload, [&](const KeeperPayload::Field &field) {
        if (field.id == KeeperField::Password && !row.hasPassword) {
            row.hasPassword = !field.text.isEmpty();
            row.passwordLength =
                quint16(std::min<int>(characters(field.text), std::numeric_limits<quint16>::max()));
            std::ranges::copy(passwordHash(field.text), row.passwordHash.begin());
        } else if (field.id == KeeperField::OneTimeSecret) {
            row.hasOneTimeSecret = !field.text.isEmpty();
        } else if (!field.isSecret) {
            note(row, texts, field.id, field.text);
        }
    });
    std::ranges::copy(facts.id.first(std::min(facts.id.size(), qsizetype(row.id.size()))), row.id.begin());
    row.changed = facts.changed;
    row.isTrashed = facts.isTrashed;
    row.trashedAt = facts.trashedAt;
    row.shownVersion = facts.shownVersion;
    row.lostPlace = facts.lostPlace;
    row.textsAt = quint32(m_texts.size());
    row.foldedAt = quint32(m_folded.size());
    for (int which = 0; which < TextCount; ++which) {
        const QByteArrayView text = texts.shown[std::size_t(which)];
        row.lengths[std::size_t(which)] = quint16(text.size());
        m_texts.append(text.data(), std::size_t(text.size()));
    }
    for (const QByteArrayView text :
         {texts.shown[Title], texts.shown[UserName], texts.shown[Address], texts.shown[Tags], texts.notes}) {
        const QByteArray folded = fold(text);
        if (m_folded.size() == row.foldedAt)
            row.titleLength = quint16(folded.size());
        m_folded.append(folded.constData(), std::size_t(folded.size()));
        m_folded += lineEnd;
    }
    row.foldedLength = quint32(m_folded.size()) - row.foldedAt;
    m_rows.push_back(row);
}

void KeeperIndex::addDamaged(int record)
{
    Row row;
    row.damagedPlace = record;
    m_rows.push_back(row);
}

bool KeeperIndex::isLess(std::string_view folded, const Row &left, const Row &right)
{
    const int order = folded.substr(left.foldedAt, left.titleLength)
                          .compare(folded.substr(right.foldedAt, right.titleLength));
    return order != 0 ? order < 0
                      : std::tie(left.damagedPlace, left.id) < std::tie(right.damagedPlace, right.id);
}

void KeeperIndex::sort()
{
    std::ranges::sort(m_rows,
                      [this](const Row &left, const Row &right) { return isLess(m_folded, left, right); });
    layOut();
    m_rows.shrink_to_fit();
}

void KeeperIndex::settle()
{
    const Row added = m_rows.back();
    const auto isLessRow = [this](const Row &left, const Row &right) {
        return isLess(m_folded, left, right);
    };
    const auto last = m_rows.end() - 1;
    const auto former = std::find_if(m_rows.begin(), last, [&added](const Row &row) {
        return row.damagedPlace == 0 && row.id == added.id;
    });
    if (former != last) {
        m_dead += former->foldedLength;
        // With the same title it stays where it is.
        const bool isBehind = former == m_rows.begin() || !isLessRow(added, *(former - 1));
        if (isBehind && (former + 1 == last || !isLessRow(*(former + 1), added))) {
            *former = added;
            m_rows.pop_back();
            pack();
            return;
        }
        m_rows.erase(former);
    }
    pack();
    m_ordered = std::min<std::size_t>(m_ordered, m_rows.back().foldedAt);
    const auto end = m_rows.end() - 1;
    std::rotate(std::upper_bound(m_rows.begin(), end, m_rows.back(), isLessRow), end, m_rows.end());
}

/// Drops texts of no row where they are most of what is held.
void KeeperIndex::pack()
{
    if (m_dead * 2 > m_folded.size())
        layOut();
}

/// All texts anew, in the order of the rows.
void KeeperIndex::layOut()
{
    const auto lengthOf = [](const Row &row) {
        return std::accumulate(row.lengths.begin(), row.lengths.end(), std::size_t(0));
    };
    std::string texts;
    std::string folded;
    texts.reserve(std::accumulate(m_rows.begin(), m_rows.end(), std::size_t(0),
                                  [&](std::size_t sum, const Row &row) { return sum + lengthOf(row); }));
    folded.reserve(m_folded.size() - m_dead);
    for (Row &row : m_rows) {
        const auto textsAt = quint32(texts.size());
        texts.append(m_texts, row.textsAt, lengthOf(row));
        row.textsAt = textsAt;
        const auto foldedAt = quint32(folded.size());
        folded.append(m_folded, row.foldedAt, row.foldedLength);
        row.foldedAt = foldedAt;
    }
    m_texts.swap(texts);
    m_folded.swap(folded);
    wipe(texts);
    wipe(folded);
    m_ordered = m_folded.size();
    m_dead = 0;
}

void KeeperIndex::remove(QByteArrayView id)
{
    const int place = placeOf(id);
    if (place < 0)
        return;
    const auto row = m_rows.begin() + place;
    m_dead += row->foldedLength;
    m_rows.erase(row);
}

void KeeperIndex::removeDamaged()
{
    std::erase_if(m_rows, [](const Row &row) { return row.damagedPlace != 0; });
}

int KeeperIndex::placeOf(QByteArrayView id) const
{
    const auto row = std::ranges::find_if(m_rows, [id](const Row &each) {
        return each.damagedPlace == 0 && QByteArrayView(each.id.data(), qsizetype(each.id.size())) == id;
    });
    return row == m_rows.end() ? -1 : int(row - m_rows.begin());
}

QString KeeperIndex::text(const Row &row, Text which) const
{
    const quint32 at = std::accumulate(row.lengths.begin(), row.lengths.begin() + which, row.textsAt);
    return QString::fromUtf8(m_texts.data() + at, row.lengths[which]);
}

KeeperSummary KeeperIndex::summary(int place) const
{
    const Row &row = m_rows[std::size_t(place)];
    KeeperSummary summary;
    summary.damagedPlace = row.damagedPlace;
    if (row.damagedPlace != 0)
        return summary;
    summary.id = QByteArray(row.id.data(), qsizetype(row.id.size()));
    summary.kind = row.kind;
    summary.title = text(row, Title);
    summary.userName = text(row, UserName);
    summary.address = text(row, Address);
    summary.member = text(row, Member);
    if (row.lengths[Tags] > 0)
        summary.tags = split(text(row, Tags));
    summary.isFavourite = row.isFavourite;
    summary.hasPassword = row.hasPassword;
    summary.hasOneTimeSecret = row.hasOneTimeSecret;
    if (row.expires != 0)
        summary.expires = epoch.addDays(row.expires);
    summary.changed = timeOf(row.changed);
    summary.passwordChanged = timeOf(row.passwordChanged);
    summary.isTrashed = row.isTrashed;
    summary.trashedAt = timeOf(row.trashedAt);
    summary.shownVersion = timeOf(row.shownVersion);
    summary.lostPlace = row.lostPlace;
    if (row.hasPassword)
        summary.passwordHash = QByteArray(row.passwordHash.data(), qsizetype(row.passwordHash.size()));
    summary.passwordLength = row.passwordLength;
    return summary;
}

/// The longest word leads, since it is in the fewest entries: where the texts stand in the order of the rows,
/// it is looked for in all of them at once.
QList<int> KeeperIndex::find(QStringView text) const
{
    QByteArrayList words = fold(text.toUtf8()).split(' ');
    words.removeAll({});
    std::ranges::stable_sort(words, std::ranges::greater(), &QByteArray::size);
    const QByteArray first = words.isEmpty() ? QByteArray() : words.takeFirst();
    const QByteArrayView ordered(m_folded.data(), qsizetype(m_ordered));
    QList<int> places;
    places.reserve(first.isEmpty() ? count() : 0);
    qsizetype next = -1; // where the first word stands in or behind the row before
    for (int place = 0; place < count(); ++place) {
        const Row &row = m_rows[std::size_t(place)];
        const QByteArrayView folded(m_folded.data() + row.foldedAt, row.foldedLength);
        bool isThere = first.isEmpty();
        if (!isThere && row.foldedAt < m_ordered) {
            if (next < row.foldedAt)
                next = indexOf(ordered, first, row.foldedAt);
            isThere = next < row.foldedAt + row.foldedLength;
        } else if (!isThere) {
            isThere = contains(folded, first);
        }
        if (isThere &&
            std::ranges::all_of(words, [folded](const QByteArray &word) { return contains(folded, word); }))
            places.append(place);
    }
    return places;
}

QList<QByteArray> KeeperIndex::trash() const
{
    QList<QByteArray> ids;
    for (const Row &row : m_rows) {
        if (row.isTrashed)
            ids.append(QByteArray(row.id.data(), qsizetype(row.id.size())));
    }
    return ids;
}

std::vector<qint32> KeeperIndex::expiries(QDate from) const
{
    std::vector<qint32> days;
    for (const Row &row : m_rows) {
        if (row.kind == EntryKind::Document && !row.isTrashed && row.expires != 0 &&
            row.expires >= epoch.daysTo(from))
            days.push_back(row.expires);
    }
    std::ranges::sort(days);
    return days;
}

qsizetype KeeperIndex::memoryUsed() const
{
    const std::size_t used = m_rows.capacity() * sizeof(Row) + m_texts.capacity() + m_folded.capacity();
    return qsizetype(used);
}
