// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperplaces.h"

#include <algorithm>
#include <tuple>

KeeperPlaces::Sort KeeperPlaces::sortOf(quint8 state)
{
    return state == KeeperRecord::Draft      ? Sort::Draft
           : state == KeeperRecord::Settings ? Sort::Settings
                                             : Sort::Entry;
}

bool KeeperPlaces::isFree(const Place &place)
{
    return place.state == KeeperRecord::Free || place.isLeftOver;
}

bool KeeperPlaces::isOf(const Place &place, Sort sort)
{
    return place.state >= KeeperRecord::Entry && place.state <= KeeperRecord::Settings &&
           sortOf(place.state) == sort;
}

void KeeperPlaces::clear()
{
    *this = {};
}

// Ids

std::vector<qint32>::const_iterator KeeperPlaces::orderOf(QByteArrayView id) const
{
    return std::ranges::lower_bound(
        m_order, id, [](QByteArrayView left, QByteArrayView right) { return left < right; },
        [this](qint32 owner) { return QByteArrayView(m_ids[std::size_t(owner)]); });
}

/// -1: none.
qint32 KeeperPlaces::knownOwner(QByteArrayView id) const
{
    const auto found = orderOf(id);
    return found != m_order.end() && QByteArrayView(m_ids[std::size_t(*found)]) == id ? *found : -1;
}

qint32 KeeperPlaces::ownerOf(QByteArrayView id)
{
    if (const qint32 known = knownOwner(id); known >= 0)
        return known;
    const auto owner = qint32(m_ids.size());
    m_order.insert(orderOf(id), owner);
    std::ranges::copy(id.first(KeeperRecord::idLength), m_ids.emplace_back().begin());
    m_first.push_back(0);
    return owner;
}

QByteArray KeeperPlaces::idOf(qint32 owner) const
{
    return QByteArrayView(m_ids[std::size_t(owner)]).toByteArray();
}

// Reading

void KeeperPlaces::add(QByteArrayView open)
{
    const KeeperRecord head = KeeperRecord::decoded(open);
    m_places.emplace_back().state = head.state;
    if (head.state == KeeperRecord::Free || head.state > KeeperRecord::Settings)
        return;
    if (head.isSound())
        hold(count(), head);
    else
        m_places.back().state = damagedState;
}

void KeeperPlaces::addDamaged(QByteArrayView guess)
{
    m_places.emplace_back().state = damagedState;
    if (guess.size() < KeeperRecord::headLength)
        return;
    const KeeperRecord head = KeeperRecord::decoded(guess);
    if (head.state == KeeperRecord::Entry || head.state == KeeperRecord::Trash) // no draft of it
        m_guesses.emplace_back(count(), head);
}

void KeeperPlaces::settle()
{
    m_ids.shrink_to_fit();
    m_order.shrink_to_fit();
    m_first.shrink_to_fit();
    findLost();
    findLeftOvers();
}

/// An id of 16 bytes that is there is no chance: the damage is elsewhere in the record.
void KeeperPlaces::findLost()
{
    for (const auto &[record, head] : m_guesses) {
        const qint32 owner = knownOwner(head.id);
        if (owner < 0)
            continue;
        Lost &lost = m_lost[owner];
        if (head.version > lost.version)
            lost = {record, head.version};
    }
    m_guesses.clear();
}

/// What a write or a removal left behind that was interrupted. Beside damaged records it may belong to one of
/// them, and stays.
void KeeperPlaces::findLeftOvers()
{
    if (std::ranges::any_of(m_places, [](const Place &place) { return place.state == damagedState; }))
        return;
    for (const Sort sort : {Sort::Entry, Sort::Draft, Sort::Settings}) {
        forEach(sort, [this](const QByteArray &, const std::vector<Version> &versions) {
            for (const Version &version : versions) {
                for (const int record : version.isWhole ? std::vector<int>() : version.records)
                    placeOf(record).isLeftOver = true;
            }
        });
    }
}

// Versions

std::vector<KeeperPlaces::Version> KeeperPlaces::gathered(std::vector<int> records, Sort sort) const
{
    std::ranges::sort(records, {}, [this](int record) {
        const Place &place = placeOf(record);
        return std::tuple(place.version, place.part, record);
    });
    std::vector<Version> versions;
    for (const int record : records) {
        const Place &place = placeOf(record);
        if (versions.empty() || versions.back().number != place.version)
            versions.push_back({.number = place.version, .state = place.state, .time = place.time});
        versions.back().records.push_back(record);
    }
    for (Version &version : versions) {
        const std::size_t parts = placeOf(version.records.front()).parts;
        version.isWhole = version.records.size() == parts;
        for (std::size_t part = 1; version.isWhole && part <= parts; ++part) {
            const Place &place = placeOf(version.records[part - 1]);
            version.isWhole = place.part == part && place.parts == parts && place.state == version.state;
        }
    }
    if (sort == Sort::Entry && !records.empty())
        addLost(versions, placeOf(records.front()).owner);
    return versions;
}

/// A version that is known only by a record that does not open.
void KeeperPlaces::addLost(std::vector<Version> &versions, qint32 owner) const
{
    const auto lost = m_lost.find(owner);
    if (lost == m_lost.end() || lost->second.version < versions.back().number)
        return;
    if (lost->second.version > versions.back().number)
        versions.push_back({.number = lost->second.version});
    if (!versions.back().isWhole)
        versions.back().lostPlace = lost->second.record;
}

void KeeperPlaces::forEach(
    Sort sort, const std::function<void(const QByteArray &id, const std::vector<Version> &)> &visit) const
{
    std::vector<int> records;
    for (int record = 1; record <= count(); ++record) {
        const Place &place = placeOf(record);
        if (isOf(place, sort) && !place.isLeftOver)
            records.push_back(record);
    }
    std::ranges::stable_sort(records, {}, [this](int record) { return placeOf(record).owner; });
    for (auto first = records.begin(); first != records.end();) {
        const qint32 owner = placeOf(*first).owner;
        const auto last =
            std::find_if(first, records.end(), [&](int record) { return placeOf(record).owner != owner; });
        visit(idOf(owner), gathered({first, last}, sort));
        first = last;
    }
}

std::vector<int> KeeperPlaces::recordsOf(qint32 owner, Sort sort) const
{
    std::vector<int> records;
    for (int record = owner < 0 ? 0 : m_first[std::size_t(owner)]; record > 0;
         record = placeOf(record).next) {
        if (isOf(placeOf(record), sort))
            records.push_back(record);
    }
    return records;
}

std::vector<KeeperPlaces::Version> KeeperPlaces::versions(Sort sort, const QByteArray &id) const
{
    std::vector<int> records = recordsOf(knownOwner(id), sort);
    std::erase_if(records, [this](int record) { return placeOf(record).isLeftOver; });
    return gathered(records, sort);
}

quint32 KeeperPlaces::highestVersion(Sort sort, QByteArrayView id) const
{
    quint32 highest = 0;
    for (const int record : recordsOf(knownOwner(id), sort))
        highest = std::max(highest, placeOf(record).version);
    return highest;
}

// Writing

std::vector<int> KeeperPlaces::free(std::size_t count) const
{
    std::vector<int> free;
    for (int record = 1; record <= this->count() && free.size() < count; ++record) {
        if (isFree(placeOf(record)))
            free.push_back(record);
    }
    return free;
}

void KeeperPlaces::hold(int record, const KeeperRecord &head)
{
    release(record);
    const qint32 owner = ownerOf(head.id);
    int &first = m_first[std::size_t(owner)];
    placeOf(record) = {head.state, false, head.part,    head.parts, head.used,
                       owner,      first, head.version, head.time};
    first = record;
}

void KeeperPlaces::release(int record)
{
    const Place former = placeOf(record);
    placeOf(record) = {};
    if (former.owner < 0)
        return;
    int *link = &m_first[std::size_t(former.owner)];
    while (*link != record)
        link = &placeOf(*link).next;
    *link = former.next;
}

QList<int> KeeperPlaces::damaged() const
{
    QList<int> damaged;
    for (int record = 1; record <= count(); ++record) {
        if (placeOf(record).state == damagedState)
            damaged.append(record);
    }
    return damaged;
}

void KeeperPlaces::forgetDamaged()
{
    m_lost.clear();
    findLeftOvers();
}
