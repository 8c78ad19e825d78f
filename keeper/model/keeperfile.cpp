// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperfile.h"

#include "keeper/model/keeperfiles.h"
#include "storage/changeset.h"
#include "storage/disk.h"
#include "storage/log.h"
#include "storage/openrecordfile.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <map>
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

KeeperFile::~KeeperFile()
{
    std::ignore = flush();
}

bool KeeperFile::load()
{
    m_places.clear();
    m_places.reserve(m_file.recordCount());
    SecretBytes head(KeeperRecord::headLength);
    m_file.forEach(1, [this, &head](int record, QByteArrayView bytes) {
        if (m_records.open(record, bytes, m_open)) {
            m_places.add(m_open.view());
        } else {
            m_records.guess(bytes, head);
            m_places.addDamaged(head.view());
        }
        return true;
    });
    m_open.zero();
    m_places.settle();
    return m_places.count() == m_file.recordCount();
}

std::optional<SecretBytes> KeeperFile::payload(const Version &version) const
{
    if (!version.isWhole)
        return std::nullopt;
    qsizetype size = 0;
    for (const int record : version.records)
        size += m_places.used(record);
    SecretBytes payload(size);
    qsizetype at = 0;
    for (const int record : version.records) {
        if (!m_records.open(record, m_file.read(record), m_open))
            return std::nullopt;
        const qsizetype used = m_places.used(record);
        if (used > 0)
            std::memcpy(payload.data() + at, m_open.data() + KeeperRecord::headLength, std::size_t(used));
        at += used;
    }
    m_open.zero();
    return payload;
}

void KeeperFile::forEachPayload(const std::vector<std::pair<int, qsizetype>> &records,
                                const std::function<void(qsizetype tag, QByteArrayView payload)> &visit) const
{
    auto next = records.begin();
    m_file.forEach(1, [&](int record, QByteArrayView bytes) {
        if (next != records.end() && next->first == record) {
            if (m_records.open(record, bytes, m_open))
                visit(next->second, m_open.view().sliced(KeeperRecord::headLength, m_places.used(record)));
            ++next;
        }
        return next != records.end();
    });
    m_open.zero();
}

QByteArray KeeperFile::sealedFree(int record) const
{
    return m_records.sealed(record, QByteArray(KeeperRecord::openLength, '\0'));
}

/// The new records come all or not at all, so that a file that ends early was always damaged.
bool KeeperFile::grow(std::size_t missing)
{
    const int first = m_places.count() + 1;
    const int count = (int(missing) + growth - 1) / growth * growth;
    ChangeSet change(m_folder);
    for (int record = first; record < first + count; ++record)
        change.write(m_file, record, sealedFree(record));
    if (!change.commit())
        return false;
    m_places.addFree(count);
    return true;
}

/// None where the disk refuses to give so many.
std::vector<int> KeeperFile::takeFree(std::size_t count)
{
    std::vector<int> free = m_places.free(count);
    if (free.size() < count) {
        if (!grow(count - free.size()))
            return {};
        free = m_places.free(count);
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
    if (head.parts > KeeperRecord::mostParts)
        return false;
    for (head.part = 1; head.part <= head.parts; ++head.part) {
        const int record = free.back();
        free.pop_back();
        const QByteArrayView part = partOf(writing.payload, head.part);
        head.used = quint16(part.size());
        written.push_back({record, file.read(record).toByteArray(), head});
        head.encode(part, m_open.data());
        const QByteArray sealed = m_records.sealed(record, m_open.view());
        m_open.zero();
        if (!file.write(record, sealed))
            return false;
    }
    return true;
}

bool KeeperFile::readsBack(OpenRecordFile &file, const Written &written, QByteArrayView plain) const
{
    const bool isSame = m_records.open(written.record, file.read(written.record), m_open) &&
                        KeeperRecord::decoded(m_open.view()).version == written.head.version &&
                        m_open.view().sliced(KeeperRecord::headLength, written.head.used) == plain;
    m_open.zero();
    return isSame;
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
    const KeeperPlaces::Sort sort = KeeperPlaces::sortOf(writings.front().state);
    std::map<QByteArray, quint32> versions; // one may be written twice
    OpenRecordFile file(m_file);
    std::vector<Written> written;
    written.reserve(count);
    bool isDone = std::ranges::all_of(writings, [&](const Writing &writing) {
        quint32 &version =
            versions.try_emplace(writing.id, m_places.highestVersion(sort, writing.id)).first->second;
        return version < std::numeric_limits<quint32>::max() &&
               writeParts(file, writing, ++version, free, written);
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
    m_hasUnflushed = false;
    for (const Written &each : written)
        m_places.hold(each.record, each.head);
    return true;
}

bool KeeperFile::overwrite(OpenRecordFile &file, const std::vector<int> &records)
{
    for (const int record : records) {
        if (!file.write(record, sealedFree(record)))
            return false;
        m_places.release(record);
    }
    return true;
}

bool KeeperFile::release(const std::vector<int> &records)
{
    if (records.empty())
        return true;
    // What went before goes before: nothing that these records outlived may be there without them.
    if (!flush())
        return false;
    OpenRecordFile file(m_file);
    return overwrite(file, records) && file.flush();
}

bool KeeperFile::releaseWithTheNext(const std::vector<int> &records)
{
    if (records.empty())
        return true;
    m_hasUnflushed = true;
    OpenRecordFile file(m_file);
    return overwrite(file, records);
}

bool KeeperFile::flush()
{
    if (m_hasUnflushed) {
        QFile file(m_file.path());
        m_hasUnflushed = !file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) || !Disk::flush(file);
    }
    return !m_hasUnflushed;
}

bool KeeperFile::giveUpDamaged()
{
    const QList<int> damaged = m_places.damaged();
    const bool isDone = release({damaged.begin(), damaged.end()});
    m_places.forgetDamaged();
    return isDone;
}
