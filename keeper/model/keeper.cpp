// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeper.h"

#include "keeper/model/keeperpayload.h"
#include "storage/changeset.h"
#include "storage/sealing/recoverycode.h"

#include <QtEndian>

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace {

using Sort = KeeperFile::Sort;
using Version = KeeperFile::Version;

const QByteArray noId(KeeperRecord::idLength, '\0');
constexpr std::size_t mostExpiries = 127;
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

Keeper::Keeper(const DataFolder &folder, const Clock &clock, PasswordCost cost)
    : m_folder(folder)
    , m_clock(clock)
    , m_cost(cost)
{}

Keeper::State Keeper::state() const
{
    return m_file ? State::Open : KeeperFiles::state(m_folder);
}

bool Keeper::isOneCopyDamaged() const
{
    return keys().state() == KeySlots::State::OneCopyDamaged;
}

KeyDerivation Keeper::newKey(const QString &password) const
{
    const std::optional<KeySlots::Content> content = keys().content();
    return KeyDerivation::fresh(SecretBytes::ofText(password), content ? content->cost : m_cost);
}

KeyDerivation Keeper::newCodeKey(const QString &code) const
{
    return newKey(RecoveryCode::read(code).value_or(QString()));
}

std::optional<KeeperOpening> Keeper::opening(const QString &typed, KeySlots::Slot slot) const
{
    return state() == State::Locked ? makeOpening(typed, slot, true) : std::nullopt;
}

std::optional<KeeperOpening> Keeper::checking(const QString &typed, KeySlots::Slot slot) const
{
    return makeOpening(typed, slot, false);
}

std::optional<KeeperOpening> Keeper::makeOpening(const QString &typed, KeySlots::Slot slot,
                                                 bool readsEntries) const
{
    const std::optional<QString> text =
        slot == KeySlots::Recovery ? RecoveryCode::read(typed) : std::optional(typed);
    if (!text || text->isEmpty())
        return std::nullopt;
    std::optional<KeyDerivation> derivation = keys().opening(slot, SecretBytes::ofText(*text));
    if (!derivation)
        return std::nullopt;
    return KeeperOpening(m_folder, keys(), slot, std::move(*derivation), readsEntries);
}

bool Keeper::create(const KeyDerivation &master, const KeyDerivation &code)
{
    if (state() != State::None || !master.isDone() || !code.isDone())
        return false;
    SecretBytes key;
    QByteArray id;
    ChangeSet change(m_folder);
    const QByteArray bothCopies = keys().made(master, code, key, id);
    change.replace(KeeperFiles::entries, KeeperFile::made(SecretBytes::copyOf(key.view()), id));
    change.replace(KeeperFiles::keys, bothCopies);
    if (!change.commit())
        return false;
    m_file = std::make_unique<KeeperFile>(m_folder, std::move(key), id);
    m_file->load();
    m_index = KeeperOpening::indexOf(*m_file);
    m_settings = {};
    emit changed();
    return true;
}

bool Keeper::judge(const KeeperOpening &opening)
{
    if (opening.isRight())
        std::ignore = keys().forgetWrongAnswers(); // opens all the same where nothing can be written
    else if (opening.isJudged())
        std::ignore = keys().countWrongAnswer(m_clock.now());
    return opening.isRight();
}

bool Keeper::unlock(KeeperOpening opening)
{
    if (!judge(opening) || !opening.m_file)
        return false;
    m_file = std::move(opening.m_file);
    m_index = std::move(opening.m_index);
    readSettings();
    purge();
    tellExpiries();
    emit changed();
    return true;
}

bool Keeper::isRight(const KeeperOpening &checking)
{
    return judge(checking);
}

KeySlots::WrongAnswers Keeper::wrongAnswers() const
{
    const std::optional<KeySlots::Content> content = keys().content();
    return content ? content->wrongAnswers : KeySlots::WrongAnswers();
}

void Keeper::lock()
{
    const bool wasOpen = m_file != nullptr;
    m_file.reset();
    m_index.clear();
    m_settings = {};
    if (wasOpen)
        emit changed();
}

bool Keeper::changeMaster(const KeyDerivation &master)
{
    return m_file && keys().setSlot(KeySlots::Password, master, m_file->key());
}

bool Keeper::changeCode(const KeyDerivation &code)
{
    return m_file && keys().setSlot(KeySlots::Recovery, code, m_file->key());
}

QList<KeeperSummary> Keeper::entries() const
{
    QList<KeeperSummary> entries;
    entries.reserve(count());
    for (int place = 0; place < count(); ++place)
        entries.append(summary(place));
    return entries;
}

std::optional<KeeperEntry> Keeper::entry(const QByteArray &id, quint32 version) const
{
    if (!m_file)
        return std::nullopt;
    std::optional<SecretBytes> payload;
    if (version == 0) {
        if (const auto current = KeeperOpening::current(id, m_file->versions(Sort::Entry, id)))
            payload = m_file->payload(current->version);
    } else {
        for (const Version &each : m_file->versions(Sort::Entry, id)) {
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

QList<KeeperVersion> Keeper::versions(const QByteArray &id) const
{
    QList<KeeperVersion> earlier;
    if (!m_file)
        return earlier;
    const std::vector<Version> versions = m_file->versions(Sort::Entry, id);
    const auto current = KeeperOpening::current(id, versions);
    for (auto it = versions.rbegin(); it != versions.rend() && earlier.size() < earlierVersions; ++it) {
        if (isEarlier(*it) && it->number != current->version.number)
            earlier.append({it->number, QDateTime::fromSecsSinceEpoch(it->time, Qt::UTC)});
    }
    return earlier;
}

bool Keeper::isUsedBefore(const QString &password, const QByteArray &id) const
{
    if (!m_file || password.isEmpty())
        return false;
    if (m_index.hasPassword(SecretBytes::ofText(password).view(), id))
        return true;
    return std::ranges::any_of(versions(id), [&](const KeeperVersion &version) {
        const auto earlier = entry(id, version.number);
        return earlier && earlier->text(KeeperField::Password) == password;
    });
}

/// Sealed in it: since when the password is what it is.
KeeperFile::Writing Keeper::writingOf(const KeeperEntry &entry) const
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

bool Keeper::save(KeeperEntry &entry)
{
    QList<KeeperEntry> entries{entry};
    if (!saveAll(entries))
        return false;
    entry.id = entries.first().id;
    return true;
}

bool Keeper::saveAll(QList<KeeperEntry> &entries)
{
    if (!m_file || !std::ranges::all_of(entries, KeeperPayload::fits))
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
    showAnew(ids);
    return true;
}

/// Versions beyond the last earlier ones make room, and those of the trash that an entry has left. One that
/// stays where the disk refuses does no harm, and goes with the next.
void Keeper::trim(const QList<QByteArray> &ids)
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
        m_file->forEach(Sort::Entry, gather);
    } else {
        for (const QByteArray &id : ids)
            gather(id, m_file->versions(Sort::Entry, id));
    }
    std::ignore = m_file->release(records);
}

void Keeper::showAnew(const QList<QByteArray> &ids)
{
    if (ids.size() >= many) {
        m_index = KeeperOpening::indexOf(*m_file);
    } else {
        for (const QByteArray &id : ids) {
            const auto current = KeeperOpening::current(id, m_file->versions(Sort::Entry, id));
            if (const auto payload = current ? m_file->payload(current->version) : std::nullopt) {
                m_index.add(current->facts, payload->view());
                m_index.settle();
            } else {
                m_index.remove(id);
            }
        }
    }
    tellExpiries();
    emit changed();
}

/// The entry as it is, as a version of another state.
std::optional<KeeperFile::Writing> Keeper::moved(const QByteArray &id, KeeperRecord::State state) const
{
    const auto current = KeeperOpening::current(id, m_file->versions(Sort::Entry, id));
    if (!current || current->version.state == state)
        return std::nullopt;
    std::optional<SecretBytes> payload = m_file->payload(current->version);
    if (!payload)
        return std::nullopt;
    return KeeperFile::Writing{id, state, m_clock.now().toSecsSinceEpoch(), std::move(*payload)};
}

bool Keeper::setTrashed(const QList<QByteArray> &ids, bool isTrashed)
{
    if (!m_file)
        return false;
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
bool Keeper::bringBack(const QByteArray &id)
{
    std::optional<KeeperFile::Writing> writing = moved(id, KeeperRecord::Entry);
    if (!writing)
        return true;
    const std::vector<Version> versions = m_file->versions(Sort::Entry, id);
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

bool Keeper::removeForGood(const QList<QByteArray> &ids)
{
    if (!m_file)
        return false;
    std::vector<int> older;
    std::vector<int> last;
    for (const QByteArray &id : ids) {
        const std::vector<Version> versions = m_file->versions(Sort::Entry, id);
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

QList<QByteArray> Keeper::trash() const
{
    QList<QByteArray> ids;
    for (int place = 0; place < count(); ++place) {
        if (const KeeperSummary entry = summary(place); entry.isTrashed)
            ids.append(entry.id);
    }
    return ids;
}

void Keeper::purge()
{
    QList<QByteArray> old = trash();
    old.removeIf([this](const QByteArray &id) {
        const QDate trashed = summary(placeOf(id)).trashedAt.toLocalTime().date();
        return trashed.daysTo(m_clock.today()) < daysInTrash;
    });
    if (!old.isEmpty() && !m_folder.isReadOnly())
        std::ignore = removeForGood(old); // else it goes the next time
}

/// Drafts and settings, of which there is one at a time: all whole versions, the latest last.
std::vector<Version> Keeper::single(Sort sort) const
{
    std::vector<Version> versions;
    m_file->forEach(sort, [&versions](const QByteArray &, const std::vector<Version> &found) {
        std::ranges::copy_if(found, std::back_inserter(versions), &Version::isWhole);
    });
    std::ranges::stable_sort(versions, {},
                             [](const Version &each) { return std::pair(each.time, each.number); });
    return versions;
}

bool Keeper::replaceSingle(Sort sort, std::optional<KeeperFile::Writing> writing)
{
    std::vector<int> former;
    for (const Version &version : single(sort))
        append(former, version);
    if (!writing)
        return m_file->release(former);
    std::vector<KeeperFile::Writing> writings;
    writings.push_back(std::move(*writing));
    if (!m_file->write(writings))
        return false;
    std::ignore = m_file->release(former); // the later one counts as long as both are there
    return true;
}

bool Keeper::saveDraft(const KeeperEntry &draft)
{
    if (!m_file || !KeeperPayload::fits(draft))
        return false;
    return replaceSingle(Sort::Draft,
                         KeeperFile::Writing{draft.id.size() == KeeperRecord::idLength ? draft.id : noId,
                                             KeeperRecord::Draft, m_clock.now().toSecsSinceEpoch(),
                                             KeeperPayload::encoded(draft)});
}

std::optional<KeeperEntry> Keeper::draft() const
{
    const std::vector<Version> drafts = m_file ? single(Sort::Draft) : std::vector<Version>();
    const auto payload = drafts.empty() ? std::nullopt : m_file->payload(drafts.back());
    if (!payload)
        return std::nullopt;
    KeeperEntry entry = KeeperPayload::decoded(payload->view());
    if (const QByteArray id = m_file->idOf(drafts.back()); id != noId)
        entry.id = id;
    return entry;
}

bool Keeper::dropDraft()
{
    return m_file && replaceSingle(Sort::Draft, std::nullopt);
}

void Keeper::readSettings()
{
    m_settings = {};
    const std::vector<Version> versions = single(Sort::Settings);
    if (const auto payload = versions.empty() ? std::nullopt : m_file->payload(versions.back()))
        m_settings = KeeperSettings::decoded(payload->view());
}

bool Keeper::saveSettings(const KeeperSettings &settings)
{
    if (!m_file)
        return false;
    if (settings == m_settings)
        return true;
    if (!replaceSingle(Sort::Settings,
                       KeeperFile::Writing{noId, KeeperRecord::Settings, m_clock.now().toSecsSinceEpoch(),
                                           settings.encoded()}))
        return false;
    m_settings = settings;
    tellExpiries();
    return true;
}

/// What the card may know of documents that expire: by the user's choice alone, and dates alone.
void Keeper::tellExpiries()
{
    QByteArray record;
    if (m_settings.tellsExpiry) {
        std::vector<qint32> days = m_index.expiries(m_clock.today());
        days.resize(std::min(days.size(), mostExpiries));
        record.resize(KeySlots::recordLength, '\0');
        qToLittleEndian<quint32>(quint32(days.size()), record.data());
        for (std::size_t i = 0; i < days.size(); ++i)
            qToLittleEndian<qint32>(days[i], record.data() + sizeof(quint32) + i * sizeof(qint32));
    }
    const QByteArray written = keys().openRecord();
    const bool isEmpty = std::ranges::all_of(written, [](char byte) { return byte == 0; });
    if (record != written && !(record.isEmpty() && isEmpty))
        std::ignore = keys().setOpenRecord(record); // the next change tells it anew
}

QList<int> Keeper::damagedPlaces() const
{
    return m_file ? m_file->damagedPlaces() : QList<int>();
}

bool Keeper::giveUpDamaged()
{
    if (!m_file)
        return false;
    const bool isDone = m_file->giveUpDamaged();
    m_index = KeeperOpening::indexOf(*m_file);
    emit changed();
    return isDone;
}
