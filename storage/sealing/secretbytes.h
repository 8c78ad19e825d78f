// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstddef>
#include <span>

/// Bytes that nobody else shall read: in memory that the system keeps off the disk where it can, between
/// pages that cannot be touched, and wiped before they are given back. Where the system locks no memory, it
/// goes on without.
class SecretBytes
{
public:
    SecretBytes() = default;
    /// So many zeros.
    explicit SecretBytes(qsizetype size);
    SecretBytes(SecretBytes &&other) noexcept;
    SecretBytes &operator=(SecretBytes &&other) noexcept;
    SecretBytes(const SecretBytes &) = delete;
    SecretBytes &operator=(const SecretBytes &) = delete;
    ~SecretBytes() { clear(); }

    /// A typed text in UTF-8. Accents count the same whether they were typed as one character or two.
    static SecretBytes ofText(const QString &text);
    static SecretBytes random(qsizetype size);
    static SecretBytes copyOf(QByteArrayView bytes);

    char *data() { return m_bytes; }
    const char *data() const { return m_bytes; }
    unsigned char *bytes() { return reinterpret_cast<unsigned char *>(m_bytes); }
    const unsigned char *bytes() const { return reinterpret_cast<const unsigned char *>(m_bytes); }
    qsizetype size() const { return m_size; }
    bool isEmpty() const { return m_size == 0; }
    QByteArrayView view() const { return {m_bytes, m_size}; }
    std::span<char> span() { return {m_bytes, std::size_t(m_size)}; }

    /// Overwrites them with zeros, to be used again.
    void zero();
    /// Wipes and gives back.
    void clear();

    /// Overwrites the letters of `text`, unless another text shares them, and empties it.
    static void wipe(QString &text);
    static void wipe(QByteArray &bytes);

private:
    char *m_bytes = nullptr;
    qsizetype m_size = 0;
};
