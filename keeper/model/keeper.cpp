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
    return m_open ? State::Open : KeeperFiles::state(m_folder);
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
    auto file = std::make_unique<KeeperFile>(m_folder, std::move(key), id);
    file->load();
    KeeperIndex index = KeeperOpening::indexOf(*file);
    m_open = std::make_unique<KeeperEntries>(std::move(file), std::move(index), m_clock);
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
    m_open = std::make_unique<KeeperEntries>(std::move(opening.m_file), std::move(opening.m_index), m_clock);
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
    const bool wasOpen = m_open != nullptr;
    m_open.reset();
    m_settings = {};
    if (wasOpen)
        emit changed();
}

bool Keeper::changeMaster(const KeyDerivation &master)
{
    return m_open && keys().setSlot(KeySlots::Password, master, m_open->file().key());
}

bool Keeper::changeCode(const KeyDerivation &code)
{
    return m_open && keys().setSlot(KeySlots::Recovery, code, m_open->file().key());
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
    return m_open ? m_open->entry(id, version) : std::nullopt;
}

QList<KeeperVersion> Keeper::versions(const QByteArray &id) const
{
    return m_open ? m_open->versions(id) : QList<KeeperVersion>();
}

bool Keeper::isUsedBefore(const QString &password, const QByteArray &id) const
{
    return m_open && m_open->isUsedBefore(password, id);
}

/// After a change of the entries, done or refused half-way.
bool Keeper::told(bool isDone)
{
    tellExpiries();
    emit changed();
    return isDone;
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
    return m_open && m_open->save(entries) && told(true);
}

bool Keeper::setTrashed(const QList<QByteArray> &ids, bool isTrashed)
{
    return m_open && told(m_open->setTrashed(ids, isTrashed));
}

bool Keeper::removeForGood(const QList<QByteArray> &ids)
{
    return m_open && told(m_open->removeForGood(ids));
}

QList<QByteArray> Keeper::trash() const
{
    return m_open ? m_open->trash() : QList<QByteArray>();
}

void Keeper::purge()
{
    const QList<QByteArray> old = m_open->oldTrash();
    if (!old.isEmpty() && !m_folder.isReadOnly())
        std::ignore = m_open->removeForGood(old); // else it goes the next time
}

/// Drafts and settings, of which there is one at a time: all whole versions, the latest last.
std::vector<Version> Keeper::single(Sort sort) const
{
    std::vector<Version> versions;
    m_open->file().places().forEach(sort, [&versions](const QByteArray &, const std::vector<Version> &found) {
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
        return m_open->file().release(former);
    std::vector<KeeperFile::Writing> writings;
    writings.push_back(std::move(*writing));
    if (!m_open->file().write(writings))
        return false;
    std::ignore = m_open->file().releaseWithTheNext(former); // the later one counts as long as both are there
    return true;
}

bool Keeper::saveDraft(const KeeperEntry &draft)
{
    if (!m_open || !KeeperPayload::fits(draft))
        return false;
    return replaceSingle(Sort::Draft,
                         KeeperFile::Writing{draft.id.size() == KeeperRecord::idLength ? draft.id : noId,
                                             KeeperRecord::Draft, m_clock.now().toSecsSinceEpoch(),
                                             KeeperPayload::encoded(draft)});
}

std::optional<KeeperEntry> Keeper::draft() const
{
    const std::vector<Version> drafts = m_open ? single(Sort::Draft) : std::vector<Version>();
    const auto payload = drafts.empty() ? std::nullopt : m_open->file().payload(drafts.back());
    if (!payload)
        return std::nullopt;
    KeeperEntry entry = KeeperPayload::decoded(payload->view());
    if (const QByteArray id = m_open->file().places().idOf(drafts.back()); id != noId)
        entry.id = id;
    return entry;
}

bool Keeper::dropDraft()
{
    return m_open && replaceSingle(Sort::Draft, std::nullopt);
}

void Keeper::readSettings()
{
    m_settings = {};
    const std::vector<Version> versions = single(Sort::Settings);
    if (const auto payload = versions.empty() ? std::nullopt : m_open->file().payload(versions.back()))
        m_settings = KeeperSettings::decoded(payload->view());
}

bool Keeper::saveSettings(const KeeperSettings &settings)
{
    if (!m_open)
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
        std::vector<qint32> days = m_open->index().expiries(m_clock.today());
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
    return m_open ? m_open->file().places().damaged() : QList<int>();
}

bool Keeper::giveUpDamaged()
{
    return m_open && told(m_open->giveUpDamaged());
}
