// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperfile.h"

#include "keeper/model/keeperfiles.h"
#include "storage/changeset.h"
#include "storage/log.h"
#include "storage/openrecordfile.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <tuple>
#include <utility>

namespace {

/// What the records are for, and the version of their form; the keeper's id follows.
QByteArray contextOf(const QByteArray &keeperId)
{
    return QByteArray("QENTRY\0\1", 8) + keeperId;
}

std::size_t partsOf(const SecretBytes &payload)
{
    const qsizetype parts = (payload.size() + KeeperRecord::partLength - 1) / KeeperRecord::partLength;
    return std::size_t(std::max<qsizetype>(parts, 1));
}

QByteArrayView partOf(const SecretBytes &payload, int part)
{
    const qsizetype start = (part - 1) * KeeperRecord::partLength;
    return payload.view().sliced(start, std::min(KeeperRecord::partLength, payload.size() - start));
}

} // namespace

KeeperFile::KeeperFile(const DataFolder &folder, SecretBytes key, const QByteArray &keeperId)
    : m_folder(folder)
    , m_file(folder, KeeperFiles::entries, KeeperRecord::sealedLength)
    , m_records(std::move(key), contextOf(keeperId), KeeperRecord::sealedLength)
{}

QByteArray KeeperFile::made(SecretBytes key, const QByteArray &keeperId)
{
    const SealedRecords records(std::move(key), contextOf(keeperId), KeeperRecord::sealedLength);
    const QByteArray nothing(KeeperRecord::openLength, '\0');
    QByteArray bytes;
    bytes.reserve(growth * KeeperRecord::sealedLength);
    for (int record = 1; record <= growth; ++record)
        bytes += records.sealed(record, nothing);
    return bytes;
}

bool KeeperFile::looksSealed(QByteArrayView bytes)
{
    // Of 2,048 bytes by chance, one of the 256 is missing now and then, and 32 never are.
    constexpr qsizetype fewest = 224;
    std::array<bool, 256> isThere{};
    for (const char byte : bytes.first(std::min(KeeperRecord::sealedLength, bytes.size())))
        isThere[uchar(byte)] = true;
    return std::ranges::count(isThere, true) >= fewest;
}

KeeperFile::Sort KeeperFile::sortOf(quint8 state)
{
    return state == KeeperRecord::Draft      ? Sort::Draft
           : state == KeeperRecord::Settings ? Sort::Settings
                                             : Sort::Entry;
}

bool KeeperFile::isFree(const Place &place)
{
    return place.state == KeeperRecord::Free || place.isLeftOver;
}

bool KeeperFile::isOf(const Place &place, Sort sort) const
{
    return place.state >= KeeperRecord::Entry && place.state <= KeeperRecord::Settings &&
           sortOf(place.state) == sort;
}

std::vector<qint32>::const_iterator KeeperFile::orderOf(QByteArrayView id) const
{
    return std::ranges::lower_bound(
        m_order, id, [](QByteArrayView left, QByteArrayView right) { return left < right; },
        [this](qint32 owner) { return QByteArrayView(m_ids[std::size_t(owner)]); });
}

/// -1: none.
qint32 KeeperFile::knownOwner(QByteArrayView id) const
{
    const auto found = orderOf(id);
    return found != m_order.end() && QByteArrayView(m_ids[std::size_t(*found)]) == id ? *found : -1;
}

qint32 KeeperFile::ownerOf(QByteArrayView id)
{
    if (const qint32 known = knownOwner(id); known >= 0)
        return known;
    const auto owner = qint32(m_ids.size());
    m_order.insert(orderOf(id), owner);
    std::ranges::copy(id.first(KeeperRecord::idLength), m_ids.emplace_back().begin());
    return owner;
}

bool KeeperFile::load()
{
    m_places.clear();
    m_ids.clear();
    m_order.clear();
    m_places.reserve(std::size_t(m_file.recordCount()));
    SecretBytes open(KeeperRecord::openLength);
    m_file.forEach(1, [this, &open](int record, QByteArrayView bytes) {
        m_places.emplace_back();
        if (m_records.open(record, bytes, open))
            note(record, open.view());
        else
            m_places.back().state = damagedState;
        return true;
    });
    m_ids.shrink_to_fit();
    m_order.shrink_to_fit();
    findLeftOvers();
    return int(m_places.size()) == m_file.recordCount();
}

void KeeperFile::note(int record, QByteArrayView open)
{
    const KeeperRecord head = KeeperRecord::decoded(open);
    Place &place = placeOf(record);
    place.state = head.state;
    if (head.state == KeeperRecord::Free || head.state > KeeperRecord::Settings)
        return;
    if (!head.isSound()) {
        place.state = damagedState;
        return;
    }
    place.part = head.part;
    place.parts = head.parts;
    place.used = head.used;
    place.owner = ownerOf(head.id);
    place.version = head.version;
    place.time = head.time;
}

/// What a write or a removal left behind that was interrupted. Beside damaged records it may belong to one of
/// them, and stays.
void KeeperFile::findLeftOvers()
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

std::vector<KeeperFile::Version> KeeperFile::gathered(std::vector<int> records) const
{
    std::ranges::sort(records, {}, [this](int record) {
        const Place &place = placeOf(record);
        return std::tuple(place.version, place.part, record);
    });
    std::vector<Version> versions;
    for (const int record : records) {
        const Place &place = placeOf(record);
        if (versions.empty() || versions.back().number != place.version)
            versions.push_back({place.version, place.state, place.time, {}, false});
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
    return versions;
}

void KeeperFile::forEach(
    Sort sort, const std::function<void(const QByteArray &id, const std::vector<Version> &)> &visit) const
{
    std::vector<int> records;
    for (int record = 1; record <= int(m_places.size()); ++record) {
        const Place &place = placeOf(record);
        if (isOf(place, sort) && !place.isLeftOver)
            records.push_back(record);
    }
    std::ranges::stable_sort(records, {}, [this](int record) { return placeOf(record).owner; });
    for (auto first = records.begin(); first != records.end();) {
        const qint32 owner = placeOf(*first).owner;
        const auto last =
            std::find_if(first, records.end(), [&](int record) { return placeOf(record).owner != owner; });
        visit(idOf(owner), gathered({first, last}));
        first = last;
    }
}

std::vector<KeeperFile::Version> KeeperFile::versions(Sort sort, const QByteArray &id) const
{
    const qint32 owner = knownOwner(id);
    std::vector<int> records;
    for (int record = 1; owner >= 0 && record <= int(m_places.size()); ++record) {
        const Place &place = placeOf(record);
        if (place.owner == owner && isOf(place, sort) && !place.isLeftOver)
            records.push_back(record);
    }
    return gathered(records);
}

QByteArray KeeperFile::idOf(const Version &version) const
{
    return idOf(placeOf(version.records.front()).owner);
}

QByteArray KeeperFile::idOf(qint32 owner) const
{
    return QByteArrayView(m_ids[std::size_t(owner)]).toByteArray();
}

std::optional<SecretBytes> KeeperFile::payload(const Version &version) const
{
    if (!version.isWhole)
        return std::nullopt;
    qsizetype size = 0;
    for (const int record : version.records)
        size += placeOf(record).used;
    SecretBytes payload(size);
    SecretBytes open(KeeperRecord::openLength);
    qsizetype at = 0;
    for (const int record : version.records) {
        if (!m_records.open(record, m_file.read(record), open))
            return std::nullopt;
        const qsizetype used = placeOf(record).used;
        if (used > 0)
            std::memcpy(payload.data() + at, open.data() + KeeperRecord::headLength, std::size_t(used));
        at += used;
    }
    return payload;
}

void KeeperFile::forEachPayload(const std::vector<std::pair<int, qsizetype>> &records,
                                const std::function<void(qsizetype tag, QByteArrayView payload)> &visit) const
{
    SecretBytes open(KeeperRecord::openLength);
    auto next = records.begin();
    m_file.forEach(1, [&](int record, QByteArrayView bytes) {
        if (next != records.end() && next->first == record) {
            if (m_records.open(record, bytes, open))
                visit(next->second, open.view().sliced(KeeperRecord::headLength, placeOf(record).used));
            ++next;
        }
        return next != records.end();
    });
}

/// Of each owner, with what interrupted writes left.
std::vector<quint32> KeeperFile::highestVersions(Sort sort) const
{
    std::vector<quint32> highest(m_ids.size());
    for (const Place &place : m_places) {
        if (isOf(place, sort))
            highest[std::size_t(place.owner)] = std::max(highest[std::size_t(place.owner)], place.version);
    }
    return highest;
}

QByteArray KeeperFile::sealedFree(int record) const
{
    return m_records.sealed(record, QByteArray(KeeperRecord::openLength, '\0'));
}

/// The new records come all or not at all, so that a file that ends early was always damaged.
bool KeeperFile::grow(std::size_t missing)
{
    const auto first = int(m_places.size()) + 1;
    const int count = (int(missing) + growth - 1) / growth * growth;
    ChangeSet change(m_folder);
    for (int record = first; record < first + count; ++record)
        change.write(m_file, record, sealedFree(record));
    if (!change.commit())
        return false;
    m_places.resize(m_places.size() + std::size_t(count));
    return true;
}

std::vector<int> KeeperFile::takeFree(std::size_t count)
{
    std::vector<int> free;
    for (int record = 1; record <= int(m_places.size()) && free.size() < count; ++record) {
        if (isFree(placeOf(record)))
            free.push_back(record);
    }
    const auto known = int(m_places.size());
    if (free.size() < count) {
        if (!grow(count - free.size()))
            return {};
        for (int record = known + 1; free.size() < count; ++record)
            free.push_back(record);
    }
    std::ranges::reverse(free); // taken from the end
    return free;
}

bool KeeperFile::writeParts(OpenRecordFile &file, const Writing &writing, quint32 version,
                            std::vector<int> &free, std::vector<Written> &written)
{
    KeeperRecord head;
    head.state = writing.state;
    head.parts = quint16(partsOf(writing.payload));
    head.id = writing.id;
    head.time = writing.time;
    head.version = version;
    const qint32 owner = ownerOf(writing.id);
    if (head.parts > KeeperRecord::mostParts)
        return false;
    for (head.part = 1; head.part <= head.parts; ++head.part) {
        const int record = free.back();
        free.pop_back();
        const QByteArrayView part = partOf(writing.payload, head.part);
        SecretBytes plain(KeeperRecord::openLength);
        head.encode(part, plain.data());
        written.push_back({record, file.read(record).toByteArray(),
                           Place{head.state, false, head.part, head.parts, quint16(part.size()), owner,
                                 head.version, head.time}});
        if (!file.write(record, m_records.sealed(record, plain.view())))
            return false;
    }
    return true;
}

bool KeeperFile::readsBack(OpenRecordFile &file, const Written &written, QByteArrayView plain) const
{
    SecretBytes open(KeeperRecord::openLength);
    return m_records.open(written.record, file.read(written.record), open) &&
           KeeperRecord::decoded(open.view()).version == written.place.version &&
           open.view().sliced(KeeperRecord::headLength, written.place.used) == plain;
}

void KeeperFile::takeBack(OpenRecordFile &file, const std::vector<Written> &written)
{
    bool isBack = true;
    for (const Written &one : written)
        isBack = file.write(one.record, one.former) && isBack;
    if (!file.flush() || !isBack)
        qCWarning(storageLog) << "A version that was refused could not be taken back";
}

bool KeeperFile::write(const std::vector<Writing> &writings)
{
    std::size_t count = 0;
    for (const Writing &writing : writings)
        count += partsOf(writing.payload);
    if (m_folder.isReadOnly() || writings.empty())
        return writings.empty();
    std::vector<int> free = takeFree(count);
    if (free.size() < count)
        return false;
    std::vector<quint32> versions = highestVersions(sortOf(writings.front().state));
    OpenRecordFile file(m_file);
    std::vector<Written> written;
    written.reserve(count);
    bool isDone = std::ranges::all_of(writings, [&](const Writing &writing) {
        const auto owner = std::size_t(ownerOf(writing.id));
        versions.resize(m_ids.size());
        return versions[owner] < std::numeric_limits<quint32>::max() &&
               writeParts(file, writing, ++versions[owner], free, written);
    });
    isDone = isDone && file.flush();
    auto one = written.cbegin();
    for (const Writing &writing : writings) {
        for (int part = 1; isDone && part <= int(partsOf(writing.payload)); ++part, ++one)
            isDone = readsBack(file, *one, partOf(writing.payload, part));
    }
    if (!isDone) {
        takeBack(file, written);
        return false;
    }
    for (const Written &each : written)
        placeOf(each.record) = each.place;
    return true;
}

bool KeeperFile::release(const std::vector<int> &records)
{
    if (records.empty())
        return true;
    OpenRecordFile file(m_file);
    for (const int record : records) {
        if (!file.write(record, sealedFree(record)))
            return false;
        placeOf(record) = {};
    }
    return file.flush();
}

QList<int> KeeperFile::damagedPlaces() const
{
    QList<int> damaged;
    for (int record = 1; record <= int(m_places.size()); ++record) {
        if (placeOf(record).state == damagedState)
            damaged.append(record);
    }
    return damaged;
}

bool KeeperFile::giveUpDamaged()
{
    const QList<int> damaged = damagedPlaces();
    const bool isDone = release({damaged.begin(), damaged.end()});
    findLeftOvers();
    return isDone;
}
