// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperentries.h"

#include "keeper/model/keeperopening.h"
#include "keeper/model/keeperpayload.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

using Sort = KeeperPlaces::Sort;
using Version = KeeperPlaces::Version;

/// From so many changed entries on, all are looked through at once.
constexpr qsizetype many = 64;

bool isEarlier(const Version &version)
{
    return version.isWhole && version.state == KeeperRecord::Entry;
}

void append(std::vector<int> &records, const Version &version)
{
    records.insert(records.end(), version.records.begin(), version.records.end());
}

} // namespace

KeeperEntries::KeeperEntries(std::unique_ptr<KeeperFile> file, KeeperIndex index, const Clock &clock)
    : m_file(std::move(file))
    , m_index(std::move(index))
    , m_clock(clock)
{}

std::vector<Version> KeeperEntries::versionsOf(const QByteArray &id) const
{
    return m_file->places().versions(Sort::Entry, id);
}

std::optional<KeeperEntry> KeeperEntries::entry(const QByteArray &id, quint32 version) const
{
    std::optional<SecretBytes> payload;
    if (version == 0) {
        if (const auto current = KeeperOpening::current(id, versionsOf(id)))
            payload = m_file->payload(current->version);
    } else {
        for (const Version &each : versionsOf(id)) {
            if (each.number == version)
                payload = m_file->payload(each);
        }
    }
    if (!payload)
        return std::nullopt;
    KeeperEntry entry = KeeperPayload::decoded(payload->view());
    entry.id = id;
    return entry;
}

QList<KeeperVersion> KeeperEntries::versions(const QByteArray &id) const
{
    QList<KeeperVersion> earlier;
    const std::vector<Version> versions = versionsOf(id);
    const auto current = KeeperOpening::current(id, versions);
    for (auto it = versions.rbegin(); it != versions.rend() && earlier.size() < earlierVersions; ++it) {
        if (isEarlier(*it) && it->number != current->version.number)
            earlier.append({it->number, QDateTime::fromSecsSinceEpoch(it->time).toUTC()});
    }
    return earlier;
}

bool KeeperEntries::isUsedBefore(const QString &password, const QByteArray &id) const
{
    if (password.isEmpty())
        return false;
    if (m_index.hasPassword(SecretBytes::ofText(password).view(), id))
        return true;
    return std::ranges::any_of(versions(id), [&](const KeeperVersion &version) {
        const auto earlier = entry(id, version.number);
        return earlier && earlier->text(KeeperField::Password) == password;
    });
}

/// Sealed in it: since when the password is what it is.
KeeperFile::Writing KeeperEntries::writingOf(const KeeperEntry &entry) const
{
    const QDateTime now = m_clock.now().toUTC();
    QDateTime passwordChanged;
    if (const QString password = entry.text(KeeperField::Password); !password.isEmpty()) {
        passwordChanged = now;
        const int place = m_index.placeOf(entry.id);
        const KeeperSummary before = place < 0 ? KeeperSummary() : m_index.summary(place);
        const bool isSame = before.passwordHash == m_index.passwordHash(SecretBytes::ofText(password).view());
        if (isSame && before.passwordChanged.isValid())
            passwordChanged = before.passwordChanged;
    }
    return {entry.id, KeeperRecord::Entry, now.toSecsSinceEpoch(),
            KeeperPayload::encoded(entry, passwordChanged)};
}

bool KeeperEntries::save(QList<KeeperEntry> &entries)
{
    if (!std::ranges::all_of(entries, KeeperPayload::fits))
        return false;
    QList<QByteArray> ids;
    std::vector<KeeperFile::Writing> writings;
    writings.reserve(std::size_t(entries.size()));
    for (const KeeperEntry &entry : std::as_const(entries)) {
        writings.push_back(writingOf(entry));
        if (entry.id.size() != KeeperRecord::idLength)
            writings.back().id = SecretBytes::random(KeeperRecord::idLength).view().toByteArray();
        ids.append(writings.back().id);
    }
    if (!m_file->write(writings))
        return false;
    for (qsizetype i = 0; i < entries.size(); ++i)
        entries[i].id = ids[i];
    trim(ids);
    if (ids.size() >= many) {
        showAnew(ids);
    } else {
        for (const KeeperFile::Writing &writing : writings)
            show(writing.id, writing.payload);
    }
    return true;
}

/// Versions beyond the last earlier ones make room, and those of the trash that an entry has left. One that
/// stays where the disk refuses, or the power fails, does no harm, and goes with the next.
void KeeperEntries::trim(const QList<QByteArray> &ids)
{
    std::vector<int> records;
    const auto gather = [&records](const QByteArray &id, const std::vector<Version> &versions) {
        const auto current = KeeperOpening::current(id, versions);
        qsizetype earlier = 0;
        for (auto it = versions.rbegin(); current && it != versions.rend(); ++it) {
            if (it->number == current->version.number || !it->isWhole)
                continue;
            if (it->state == KeeperRecord::Trash || ++earlier > earlierVersions)
                append(records, *it);
        }
    };
    if (ids.size() >= many) {
        m_file->places().forEach(Sort::Entry, gather);
    } else {
        for (const QByteArray &id : ids)
            gather(id, versionsOf(id));
    }
    std::ignore = m_file->releaseWithTheNext(records);
}

void KeeperEntries::showAnew(const QList<QByteArray> &ids)
{
    if (ids.size() >= many) {
        m_index = KeeperOpening::indexOf(*m_file);
    } else {
        for (const QByteArray &id : ids) {
            const auto current = KeeperOpening::current(id, versionsOf(id));
            if (const auto payload = current ? m_file->payload(current->version) : std::nullopt)
                show(id, *payload);
            else
                m_index.remove(id);
        }
    }
}

void KeeperEntries::show(const QByteArray &id, const SecretBytes &payload)
{
    if (const auto current = KeeperOpening::current(id, versionsOf(id))) {
        m_index.add(current->facts, payload.view());
        m_index.settle();
    }
}

/// The entry as it is, as a version of another state.
std::optional<KeeperFile::Writing> KeeperEntries::moved(const QByteArray &id, KeeperRecord::State state) const
{
    const auto current = KeeperOpening::current(id, versionsOf(id));
    if (!current || current->version.state == state)
        return std::nullopt;
    std::optional<SecretBytes> payload = m_file->payload(current->version);
    if (!payload)
        return std::nullopt;
    return KeeperFile::Writing{id, state, m_clock.now().toSecsSinceEpoch(), std::move(*payload)};
}

bool KeeperEntries::setTrashed(const QList<QByteArray> &ids, bool isTrashed)
{
    bool isDone = true;
    if (isTrashed) {
        std::vector<KeeperFile::Writing> writings;
        for (const QByteArray &id : ids) {
            if (std::optional<KeeperFile::Writing> writing = moved(id, KeeperRecord::Trash))
                writings.push_back(std::move(*writing));
        }
        isDone = m_file->write(writings);
    } else {
        isDone = std::ranges::all_of(ids, [this](const QByteArray &id) { return bringBack(id); });
    }
    showAnew(ids);
    return isDone;
}

/// What was put into the trash is what lies before it: without the version in the trash it is there again, as
/// old as it was. Where that one is gone, it is written anew.
bool KeeperEntries::bringBack(const QByteArray &id)
{
    std::optional<KeeperFile::Writing> writing = moved(id, KeeperRecord::Entry);
    if (!writing)
        return true;
    const std::vector<Version> versions = versionsOf(id);
    const auto last = std::ranges::find_if(versions.rbegin(), versions.rend(), isEarlier);
    const auto before = last == versions.rend() ? std::nullopt : m_file->payload(*last);
    const bool isThere = before && before->view() == writing->payload.view();
    if (!isThere) {
        std::vector<KeeperFile::Writing> writings;
        writings.push_back(std::move(*writing));
        if (!m_file->write(writings))
            return false;
    }
    std::vector<int> trashed;
    for (const Version &version : versions) {
        if (version.isWhole && version.state == KeeperRecord::Trash)
            append(trashed, version);
    }
    return m_file->release(trashed);
}

bool KeeperEntries::removeForGood(const QList<QByteArray> &ids)
{
    std::vector<int> older;
    std::vector<int> last;
    for (const QByteArray &id : ids) {
        const std::vector<Version> versions = versionsOf(id);
        const auto current = KeeperOpening::current(id, versions);
        if (!current || !current->facts.isTrashed)
            continue;
        for (const Version &version : versions) {
            if (version.isWhole)
                append(version.number == current->version.number ? last : older, version);
        }
    }
    // What says that it is in the trash goes last, behind all that it would bring back to life.
    const bool isDone = m_file->release(older) && m_file->release(last);
    showAnew(ids);
    return isDone;
}

QList<QByteArray> KeeperEntries::trash() const
{
    return m_index.trash();
}

QList<QByteArray> KeeperEntries::oldTrash() const
{
    QList<QByteArray> old = trash();
    old.removeIf([this](const QByteArray &id) {
        const QDate trashed = m_index.summary(m_index.placeOf(id)).trashedAt.toLocalTime().date();
        return trashed.daysTo(m_clock.today()) < daysInTrash;
    });
    return old;
}

bool KeeperEntries::giveUpDamaged()
{
    const bool isDone = m_file->giveUpDamaged();
    m_index = KeeperOpening::indexOf(*m_file);
    return isDone;
}
