// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/sealing/sealedrecords.h"

#include <QtEndian>

#include <sodium.h>

#include <utility>

static_assert(SealedRecords::nonceLength == crypto_aead_xchacha20poly1305_ietf_NPUBBYTES);
static_assert(SealedRecords::tagLength == crypto_aead_xchacha20poly1305_ietf_ABYTES);
static_assert(SealedRecords::keyLength == crypto_aead_xchacha20poly1305_ietf_KEYBYTES);

namespace {

const unsigned char *bytesOf(QByteArrayView view)
{
    return reinterpret_cast<const unsigned char *>(view.data());
}

} // namespace

SealedRecords::SealedRecords(SecretBytes key, QByteArray context, qsizetype recordLength)
    : m_key(std::move(key))
    , m_context(std::move(context))
    , m_recordLength(recordLength)
{}

QByteArray SealedRecords::contextOf(int number) const
{
    QByteArray context = m_context;
    context.resize(m_context.size() + qsizetype(sizeof(quint32)));
    qToLittleEndian<quint32>(quint32(number), context.data() + m_context.size());
    return context;
}

QByteArray SealedRecords::sealed(int number, QByteArrayView plain) const
{
    Q_ASSERT(plain.size() == plainLength());
    return seal(plain, contextOf(number), m_key);
}

bool SealedRecords::open(int number, QByteArrayView record, SecretBytes &plain) const
{
    return record.size() == m_recordLength && open(record, contextOf(number), m_key, plain);
}

void SealedRecords::guess(QByteArrayView record, SecretBytes &plain) const
{
    plain.zero();
    if (record.size() < nonceLength + plain.size())
        return;
    // The first block of the key stream makes the tag.
    crypto_stream_xchacha20_xor_ic(plain.bytes(), bytesOf(record.sliced(nonceLength)),
                                   static_cast<quint64>(plain.size()), bytesOf(record), 1, m_key.bytes());
}

QByteArray SealedRecords::seal(QByteArrayView plain, QByteArrayView context, const SecretBytes &key)
{
    QByteArray sealed(nonceLength + plain.size() + tagLength, '\0');
    auto *nonce = reinterpret_cast<unsigned char *>(sealed.data());
    randombytes_buf(nonce, nonceLength);
    crypto_aead_xchacha20poly1305_ietf_encrypt(
        nonce + nonceLength, nullptr, bytesOf(plain), static_cast<quint64>(plain.size()), bytesOf(context),
        static_cast<quint64>(context.size()), nullptr, nonce, key.bytes());
    return sealed;
}

bool SealedRecords::open(QByteArrayView sealed, QByteArrayView context, const SecretBytes &key,
                         SecretBytes &plain)
{
    return open(sealed, context, key, plain.span());
}

bool SealedRecords::open(QByteArrayView sealed, QByteArrayView context, const SecretBytes &key,
                         std::span<char> plain)
{
    const qsizetype cipherLength = sealed.size() - nonceLength;
    if (cipherLength < tagLength || qsizetype(plain.size()) < cipherLength - tagLength ||
        key.size() != keyLength)
        return false;
    if (crypto_aead_xchacha20poly1305_ietf_decrypt(
            reinterpret_cast<unsigned char *>(plain.data()), nullptr, nullptr,
            bytesOf(sealed.sliced(nonceLength)), static_cast<quint64>(cipherLength), bytesOf(context),
            static_cast<quint64>(context.size()), bytesOf(sealed), key.bytes()) == 0)
        return true;
    if (!plain.empty())
        sodium_memzero(plain.data(), plain.size());
    return false;
}
