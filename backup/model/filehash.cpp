// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/filehash.h"

FileHash::FileHash()
{
    crypto_hash_sha256_init(&m_state);
}

void FileHash::add(QByteArrayView bytes)
{
    crypto_hash_sha256_update(&m_state, reinterpret_cast<const unsigned char *>(bytes.data()),
                              static_cast<unsigned long long>(bytes.size()));
}

QByteArray FileHash::result()
{
    QByteArray hash(length, '\0');
    crypto_hash_sha256_final(&m_state, reinterpret_cast<unsigned char *>(hash.data()));
    crypto_hash_sha256_init(&m_state);
    return hash;
}

QByteArray FileHash::of(QByteArrayView bytes)
{
    FileHash hash;
    hash.add(bytes);
    return hash.result();
}
