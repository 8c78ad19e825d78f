// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/sealing/keyslots.h"

/// Finding out whether that is the password of the journal, which takes long. `run` can be called on any
/// thread; what came of it is handed to the seal.
class JournalOpening
{
public:
    JournalOpening(KeySlots keys, KeySlots::Content content, KeySlots::Slot slot, KeyDerivation derivation);

    /// False when that is not the password, or there is not the memory to find out.
    bool run();

    bool isRight() const { return !m_key.isEmpty(); }
    /// Whether the answer was judged at all.
    bool isJudged() const { return m_derivation.isDone(); }

private:
    friend class JournalSeal;

    KeySlots m_keys;
    KeySlots::Content m_content;
    KeySlots::Slot m_slot;
    KeyDerivation m_derivation;
    SecretBytes m_key;
};
