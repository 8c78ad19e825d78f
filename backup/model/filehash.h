// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <sodium.h>

/// SHA-256 of bytes that come one after another.
class FileHash
{
public:
    static constexpr qsizetype length = crypto_hash_sha256_BYTES;

    FileHash();

    void add(QByteArrayView bytes);
    /// Of all that was added; begins anew.
    QByteArray result();

    static QByteArray of(QByteArrayView bytes);

private:
    crypto_hash_sha256_state m_state;
};
