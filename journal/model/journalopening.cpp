// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalopening.h"

#include <utility>

JournalOpening::JournalOpening(KeySlots keys, KeySlots::Content content, KeySlots::Slot slot,
                               KeyDerivation derivation)
    : m_keys(std::move(keys))
    , m_content(std::move(content))
    , m_slot(slot)
    , m_derivation(std::move(derivation))
{}

bool JournalOpening::run()
{
    if (!m_derivation.run())
        return false;
    std::optional<SecretBytes> key = m_keys.open(m_content, m_slot, m_derivation);
    if (key)
        m_key = std::move(*key);
    return isRight();
}
