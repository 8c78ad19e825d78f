// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/sealing/keyslots.h"
#include "storage/sealing/secretbytes.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// The random key of a sealed set, and the record with which the file of each of its disks begins: in it the
/// key lies sealed by the password that the set was given. All disks of a set share both.
class SealedKey
{
public:
    static constexpr qsizetype recordLength = KeySlots::recordLength;

    /// A new one for the password of which `derived` was made.
    static SealedKey fresh(const KeyDerivation &derived);

    /// What the password's check takes of time, to be run on any thread; nothing where `record` is none of a
    /// sealed set, or is damaged.
    static std::optional<KeyDerivation> opening(QByteArrayView record, SecretBytes typed);
    /// Nothing where that was not the password.
    static std::optional<SealedKey> open(QByteArrayView record, const KeyDerivation &derived);

    const QByteArray &record() const { return m_record; }
    const SecretBytes &key() const { return m_key; }

private:
    SealedKey(QByteArray record, SecretBytes key);

    QByteArray m_record;
    SecretBytes m_key;
};
