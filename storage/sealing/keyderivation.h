// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/sealing/passwordcost.h"
#include "storage/sealing/secretbytes.h"

#include <QByteArray>

/// The slow half of every password: what was typed becomes a key. It touches no file, so that `run` can be
/// called on any thread.
class KeyDerivation
{
public:
    static constexpr qsizetype saltLength = 16;
    static constexpr qsizetype keyLength = 32;

    KeyDerivation() = default;
    KeyDerivation(SecretBytes typed, QByteArray salt, PasswordCost cost);

    /// With a salt of its own, for a password that is set.
    static KeyDerivation fresh(SecretBytes typed, PasswordCost cost);

    /// Derives the key, and wipes what was typed. False without the memory that it takes, or without a
    /// password.
    bool run();

    bool isDone() const { return !m_key.isEmpty(); }
    const SecretBytes &key() const { return m_key; }
    const QByteArray &salt() const { return m_salt; }
    PasswordCost cost() const { return m_cost; }

private:
    SecretBytes m_typed;
    QByteArray m_salt;
    PasswordCost m_cost{};
    SecretBytes m_key;
};
