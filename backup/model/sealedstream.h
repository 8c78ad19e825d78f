// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/sealing/secretbytes.h"

#include <QByteArray>
#include <QByteArrayView>

#include <functional>

#include <sodium.h>

/// Bytes in a row that only a key opens, in chunks that can be neither changed, left out, put elsewhere nor
/// taken from another row: an encrypting stream of XChaCha20-Poly1305, whose last chunk says that it is the
/// last.
namespace SealedStream {

/// Of each chunk but the last, which has fewer bytes or as many.
inline constexpr qsizetype chunkLength = 64 << 10;
/// What sealing adds to a chunk.
inline constexpr qsizetype chunkWords = crypto_secretstream_xchacha20poly1305_ABYTES;
inline constexpr qsizetype headLength = crypto_secretstream_xchacha20poly1305_HEADERBYTES;

/// How long a row of `plain` bytes is when it is sealed.
constexpr qint64 sealedLength(qint64 plain)
{
    const qint64 chunks = plain == 0 ? 1 : (plain + chunkLength - 1) / chunkLength;
    return headLength + plain + chunks * chunkWords;
}

/// The additional data of each chunk: the id of a set, and in 4 bytes the number of its disk.
QByteArray context(const QByteArray &set, int disk);

class Writer
{
public:
    using Sink = std::function<bool(QByteArrayView bytes)>;

    Writer(const SecretBytes &key, QByteArray context, Sink sink);

    /// False, from then on, where the sink refuses.
    [[nodiscard]] bool write(QByteArrayView bytes);
    /// The last chunk.
    [[nodiscard]] bool finish();

private:
    [[nodiscard]] bool push(unsigned char tag);

    crypto_secretstream_xchacha20poly1305_state m_state{};
    QByteArray m_context;
    Sink m_sink;
    SecretBytes m_plain;
    qsizetype m_filled = 0;
    QByteArray m_sealed;
    bool m_isRefused = false;
};

class Reader
{
public:
    enum class State {
        Reading,
        Complete,   ///< to its last chunk
        Incomplete, ///< it ends before that
        Damaged     ///< not every byte is as it was sealed, or it was another row
    };
    using Source = std::function<qint64(char *bytes, qint64 size)>;

    /// `source` answers with how many bytes there were, 0 at the end, -1 where they cannot be read.
    Reader(const SecretBytes &key, QByteArray context, Source source);

    /// The next bytes: how many there were, 0 at the last chunk's end, -1 where the state says why not.
    qint64 read(char *bytes, qint64 size);
    State state() const { return m_state; }

private:
    qint64 fetch(char *bytes, qint64 size);
    bool pull();
    bool stop(State state);

    crypto_secretstream_xchacha20poly1305_state m_stream{};
    QByteArray m_context;
    Source m_source;
    SecretBytes m_plain;
    qsizetype m_at = 0;
    qsizetype m_end = 0;
    QByteArray m_sealed;
    bool m_isLast = false;
    State m_state = State::Reading;
};

} // namespace SealedStream
