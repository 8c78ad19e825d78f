// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperfile.h"
#include "keeper/model/keeperindex.h"
#include "storage/sealing/keyslots.h"

#include <memory>
#include <optional>

/// Finding out whether that is the password, and opening all entries with it: all that takes long. `run` can
/// be called on any thread; what came of it is handed to the keeper.
class KeeperOpening
{
public:
    KeeperOpening(const DataFolder &folder, KeySlots keys, KeySlots::Slot slot, KeyDerivation derivation,
                  bool readsEntries);

    /// False when that is not the password, or there is not the memory to find out.
    bool run();

    bool isRight() const { return !m_key.isEmpty(); }
    /// Whether the answer was judged at all.
    bool isJudged() const { return m_derivation.isDone(); }

    /// What the list shows of an entry with these versions, and the version it is read from; nothing where
    /// none is whole.
    struct Current {
        KeeperIndex::Facts facts;
        KeeperFile::Version version;
    };
    static std::optional<Current> current(const QByteArray &id,
                                          const std::vector<KeeperFile::Version> &versions);
    static KeeperIndex indexOf(const KeeperFile &file);

private:
    friend class Keeper;

    DataFolder m_folder;
    KeySlots m_keys;
    KeySlots::Slot m_slot;
    KeyDerivation m_derivation;
    bool m_readsEntries;
    SecretBytes m_key;
    std::unique_ptr<KeeperFile> m_file;
    KeeperIndex m_index;
};
