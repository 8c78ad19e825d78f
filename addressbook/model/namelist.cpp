// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/namelist.h"

#include "addressbook/model/indexline.h"
#include "storage/ansitext.h"
#include "storage/bytecase.h"

#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A name as a telephone book files it. What follows the last name weighs less than any letter of it, so that
/// "Lind, Zoe" comes before "Lind-Berg, Anne".
struct Filed {
    explicit Filed(QByteArrayView line)
        : name(IndexLine::name(line))
        , lastName(name.first(name.contains(',') ? name.indexOf(',') : name.size()))
    {}

    /// Negative, zero or positive.
    int compare(const Filed &other) const
    {
        const int lastNames = ByteCase::compare(lastName, other.lastName);
        return lastNames == 0 ? ByteCase::compare(name, other.name) : lastNames;
    }

    QByteArrayView name;
    QByteArrayView lastName;
};

} // namespace

NameList::NameList(QByteArray bytes)
    : m_bytes(std::move(bytes))
{}

void NameList::list(qsizetype start, qsizetype length)
{
    Q_ASSERT(start >= 0 && length >= 0 && start + length <= m_bytes.size());
    m_places.push_back({quint32(start), quint32(length)});
}

void NameList::squeeze()
{
    const qsizetype length = textLength();
    if (m_bytes.size() <= 2 * length)
        return;
    NameList lines;
    lines.m_bytes.reserve(length);
    lines.m_places.reserve(m_places.size());
    for (int position = 0; position < count(); ++position)
        lines.append(bytesAt(position));
    *this = std::move(lines);
}

std::vector<int> NameList::arrange(NameOrder order)
{
    m_order = order;
    std::vector<Filed> filed;
    filed.reserve(m_places.size());
    for (const Place place : m_places)
        filed.emplace_back(bytesOf(place));
    std::vector<int> wasAt(m_places.size());
    std::iota(wasAt.begin(), wasAt.end(), 0);
    std::ranges::sort(wasAt, [&](int one, int other) {
        const auto first = std::size_t(one), second = std::size_t(other);
        const int compared = order == NameOrder::AToZ ? filed[first].compare(filed[second]) : 0;
        return compared == 0 ? m_places[first].start < m_places[second].start : compared < 0;
    });
    std::vector<Place> places;
    places.reserve(m_places.size());
    std::vector<int> isAt(m_places.size());
    for (const int position : wasAt) {
        isAt[std::size_t(position)] = int(places.size());
        places.push_back(m_places[std::size_t(position)]);
    }
    m_places = std::move(places);
    return isAt;
}

QString NameList::line(int position) const
{
    return AnsiText::decode(bytesAt(position));
}

QString NameList::name(int position) const
{
    const QString whole = line(position);
    return IndexLine::name(whole).toString();
}

int NameList::recordAt(int position) const
{
    return IndexLine::record(bytesAt(position));
}

int NameList::positionOf(int record) const
{
    for (int position = 0; record > 0 && position < count(); ++position) {
        if (recordAt(position) == record)
            return position;
    }
    return -1;
}

int NameList::find(QStringView text) const
{
    const std::optional<QByteArray> folded = ByteCase::folded(text);
    if (!folded)
        return -1;
    const int first = firstMatch(*folded, 0);
    if (first < 0 || first >= searchResumesAt || m_order == NameOrder::AToZ)
        return first;
    // A further match would send the search back to where it resumed, and to itself again: it ends there.
    const int resumed = firstMatch(*folded, searchResumesAt);
    return resumed < 0 ? first : resumed;
}

QList<int> NameList::matches(QStringView text) const
{
    const std::optional<QByteArray> folded = ByteCase::folded(text);
    QList<int> positions;
    if (!folded || folded->isEmpty())
        return positions;
    for (int at = firstMatch(*folded, 0); at >= 0; at = firstMatch(*folded, at + 1))
        positions.append(at);
    return positions;
}

QList<int> NameList::bestMatches(QStringView text) const
{
    QList<int> positions = matches(text);
    const QByteArray folded = ByteCase::folded(text).value_or(QByteArray());
    std::stable_partition(positions.begin(), positions.end(), [&](int position) {
        return ByteCase::contains(bytesAt(position).first(std::min(folded.size(), bytesAt(position).size())),
                                  folded);
    });
    return positions;
}

int NameList::firstMatch(QByteArrayView foldedText, int from) const
{
    for (int position = from; position < count(); ++position) {
        if (ByteCase::contains(bytesAt(position), foldedText))
            return position;
    }
    return -1;
}

void NameList::append(QStringView line)
{
    append(QByteArrayView(AnsiText::encode(line)));
}

void NameList::append(QByteArrayView line)
{
    m_places.push_back({quint32(m_bytes.size()), quint32(line.size())});
    m_bytes.append(line);
}

int NameList::placeFor(QStringView line) const
{
    if (m_order == NameOrder::Record)
        return count();
    const QByteArray bytes = AnsiText::encode(line);
    const auto behind = std::upper_bound(
        m_places.begin(), m_places.end(), Filed(bytes),
        [this](const Filed &one, Place other) { return one.compare(Filed(bytesOf(other))) < 0; });
    return int(behind - m_places.begin());
}

void NameList::insert(int position, QStringView line)
{
    append(line);
    std::rotate(m_places.begin() + position, m_places.end() - 1, m_places.end());
}

void NameList::removeAt(int position)
{
    if (position >= 0 && position < count())
        m_places.erase(m_places.begin() + position);
}

QString NameList::countCaption() const
{
    return u" %1 - Entries "_s.arg(count());
}

qsizetype NameList::memoryUsed() const
{
    return m_bytes.capacity() + qsizetype(m_places.capacity() * sizeof(Place));
}

qsizetype NameList::textLength() const
{
    return std::accumulate(m_places.begin(), m_places.end(), qsizetype(0),
                           [](qsizetype sum, Place place) { return sum + place.length; });
}

QByteArrayView NameList::bytesAt(int position) const
{
    if (position < 0 || position >= count())
        return {};
    return bytesOf(m_places[std::size_t(position)]);
}

QByteArrayView NameList::bytesOf(Place place) const
{
    return {m_bytes.constData() + place.start, qsizetype(place.length)};
}
