// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/sealing/secretbytes.h"

#include <sodium.h>

#include <cstring>
#include <utility>

namespace {

char *allocate(qsizetype size)
{
    if (sodium_init() < 0)
        qFatal("No source of random numbers");
    auto *bytes = static_cast<char *>(sodium_malloc(std::size_t(size)));
    if (!bytes)
        qBadAlloc();
    return bytes;
}

} // namespace

SecretBytes::SecretBytes(qsizetype size)
    : m_bytes(size > 0 ? allocate(size) : nullptr)
    , m_size(size)
{
    if (m_bytes)
        std::memset(m_bytes, 0, std::size_t(size));
}

SecretBytes::SecretBytes(SecretBytes &&other) noexcept
    : m_bytes(std::exchange(other.m_bytes, nullptr))
    , m_size(std::exchange(other.m_size, 0))
{}

SecretBytes &SecretBytes::operator=(SecretBytes &&other) noexcept
{
    std::swap(m_bytes, other.m_bytes);
    std::swap(m_size, other.m_size);
    return *this;
}

SecretBytes SecretBytes::ofText(const QString &text)
{
    QString composed = text.normalized(QString::NormalizationForm_C);
    QByteArray encoded = composed.toUtf8();
    SecretBytes bytes = copyOf(encoded);
    wipe(composed); // which spares the caller's own letters
    wipe(encoded);
    return bytes;
}

SecretBytes SecretBytes::random(qsizetype size)
{
    SecretBytes bytes(size);
    if (size > 0)
        randombytes_buf(bytes.data(), std::size_t(size));
    return bytes;
}

SecretBytes SecretBytes::copyOf(QByteArrayView bytes)
{
    SecretBytes copy(bytes.size());
    if (!bytes.isEmpty())
        std::memcpy(copy.data(), bytes.data(), std::size_t(bytes.size()));
    return copy;
}

void SecretBytes::zero()
{
    if (m_bytes)
        sodium_memzero(m_bytes, std::size_t(m_size));
}

void SecretBytes::clear()
{
    sodium_free(m_bytes); // wipes first
    m_bytes = nullptr;
    m_size = 0;
}

void SecretBytes::wipe(QString &text)
{
    if (text.isDetached())
        sodium_memzero(text.data(), std::size_t(text.size()) * sizeof(QChar));
    text = QString();
}

void SecretBytes::wipe(QByteArray &bytes)
{
    if (bytes.isDetached())
        sodium_memzero(bytes.data(), std::size_t(bytes.size()));
    bytes = QByteArray();
}
