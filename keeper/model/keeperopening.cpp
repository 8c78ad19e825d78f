// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperopening.h"

#include <sodium.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

KeeperOpening::KeeperOpening(const DataFolder &folder, KeySlots keys, KeySlots::Slot slot,
                             KeyDerivation derivation, bool readsEntries)
    : m_folder(folder)
    , m_keys(std::move(keys))
    , m_slot(slot)
    , m_derivation(std::move(derivation))
    , m_readsEntries(readsEntries)
{}

bool KeeperOpening::run()
{
    const std::optional<KeySlots::Content> content = m_keys.content();
    if (!content || !m_derivation.run())
        return false;
    std::optional<SecretBytes> key = m_keys.open(m_slot, m_derivation);
    if (!key)
        return false;
    m_key = std::move(*key);
    if (m_readsEntries) {
        m_file = std::make_unique<KeeperFile>(m_folder, SecretBytes::copyOf(m_key.view()), content->id);
        m_file->load();
        m_index = indexOf(*m_file);
    }
    return true;
}

std::optional<KeeperOpening::Current> KeeperOpening::current(const QByteArray &id,
                                                             const std::vector<KeeperFile::Version> &versions)
{
    const auto last = std::ranges::find_if(versions.rbegin(), versions.rend(), &KeeperFile::Version::isWhole);
    if (last == versions.rend())
        return std::nullopt;
    Current current{{.id = id, .changed = last->time}, *last};
    if (last->state == KeeperRecord::Trash) {
        current.facts.isTrashed = true;
        current.facts.trashedAt = last->time;
        const auto edited =
            std::ranges::find_if(last, versions.rend(), [](const KeeperFile::Version &version) {
                return version.isWhole && version.state == KeeperRecord::Entry;
            });
        if (edited != versions.rend())
            current.facts.changed = edited->time;
    }
    if (last != versions.rbegin()) {
        current.facts.shownVersion = last->time;
        current.facts.lostPlace = versions.back().lostPlace;
    }
    return current;
}

KeeperIndex KeeperOpening::indexOf(const KeeperFile &file)
{
    constexpr std::string_view purpose = "QKEEPER passwords";
    SecretBytes hashKey(crypto_generichash_KEYBYTES);
    crypto_generichash(hashKey.bytes(), std::size_t(hashKey.size()),
                       reinterpret_cast<const unsigned char *>(purpose.data()), purpose.size(),
                       file.key().bytes(), std::size_t(file.key().size()));
    KeeperIndex index(hashKey.view());

    std::vector<KeeperIndex::Facts> facts;
    std::vector<std::pair<int, qsizetype>> records; // of entries in one piece, which most are
    file.places().forEach(
        KeeperFile::Sort::Entry, [&](const QByteArray &id, const std::vector<KeeperFile::Version> &versions) {
            const std::optional<Current> found = current(id, versions);
            if (!found)
                return;
            if (found->version.records.size() == 1) {
                records.emplace_back(found->version.records.front(), qsizetype(facts.size()));
                facts.push_back(found->facts);
            } else if (const auto payload = file.payload(found->version)) {
                index.add(found->facts, payload->view());
            }
        });
    std::ranges::sort(records);
    file.forEachPayload(
        records, [&](qsizetype tag, QByteArrayView payload) { index.add(facts[std::size_t(tag)], payload); });
    for (const int record : file.places().damaged())
        index.addDamaged(record);
    index.sort();
    return index;
}
