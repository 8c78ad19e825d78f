// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/sealing/keyderivation.h"

#include "storage/log.h"

#include <sodium.h>

#include <utility>

static_assert(KeyDerivation::saltLength == crypto_pwhash_argon2id_SALTBYTES);

KeyDerivation::KeyDerivation(SecretBytes typed, QByteArray salt, PasswordCost cost)
    : m_typed(std::move(typed))
    , m_salt(std::move(salt))
    , m_cost(cost)
{}

KeyDerivation KeyDerivation::fresh(SecretBytes typed, PasswordCost cost)
{
    if (sodium_init() < 0)
        qFatal("No source of random numbers");
    QByteArray salt(saltLength, '\0');
    randombytes_buf(salt.data(), std::size_t(salt.size()));
    return {std::move(typed), std::move(salt), cost};
}

bool KeyDerivation::run()
{
    if (m_typed.isEmpty() || m_salt.size() != saltLength || !m_cost.isBearable())
        return false;
    SecretBytes key(keyLength);
    const bool isDerived =
        crypto_pwhash_argon2id(key.bytes(), keyLength, m_typed.data(), static_cast<quint64>(m_typed.size()),
                               reinterpret_cast<const unsigned char *>(m_salt.constData()), m_cost.operations,
                               m_cost.memory, crypto_pwhash_argon2id_ALG_ARGON2ID13) == 0;
    m_typed.clear();
    if (!isDerived) {
        qCWarning(storageLog) << "Not enough memory to make a key of a password";
        return false;
    }
    m_key = std::move(key);
    return true;
}
