// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/sealing/secretbytes.h"

#include <QByteArray>

#include <span>

/// Records that only a key opens (XChaCha20-Poly1305): a nonce of its own at each sealing, the sealed bytes,
/// their tag. A record opens only at its number and in its file, which the context names.
class SealedRecords
{
public:
    static constexpr qsizetype keyLength = 32;
    static constexpr qsizetype nonceLength = 24;
    static constexpr qsizetype tagLength = 16;

    /// The record's number follows `context` in the additional data, in 4 bytes.
    SealedRecords(SecretBytes key, QByteArray context, qsizetype recordLength);

    const SecretBytes &key() const { return m_key; }
    /// Bytes that a record can hold.
    qsizetype plainLength() const { return m_recordLength - nonceLength - tagLength; }

    /// The record `number` holding `plain`, which is `plainLength` bytes.
    QByteArray sealed(int number, QByteArrayView plain) const;

    /// Opens `record` into `plain`, which has room for `plainLength` bytes. False, with `plain` wiped, when
    /// not every byte is as it was sealed.
    bool open(int number, QByteArrayView record, SecretBytes &plain) const;

    /// What the first bytes of `record` seem to be, as many as `plain` has; zeros where it is shorter.
    /// Nothing proves them: they tell what a damaged record may have been, and are never shown.
    void guess(QByteArrayView record, SecretBytes &plain) const;

    /// The bytes alone, for what is no record of a file: nonce, sealed bytes, tag.
    static QByteArray seal(QByteArrayView plain, QByteArrayView context, const SecretBytes &key);
    static bool open(QByteArrayView sealed, QByteArrayView context, const SecretBytes &key,
                     SecretBytes &plain);
    /// The same into memory that need not be a secret's.
    static bool open(QByteArrayView sealed, QByteArrayView context, const SecretBytes &key,
                     std::span<char> plain);

private:
    QByteArray contextOf(int number) const;

    SecretBytes m_key;
    QByteArray m_context;
    qsizetype m_recordLength;
};
