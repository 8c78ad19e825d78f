// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/sealedstream.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace {

unsigned char *bytesOf(QByteArray &bytes)
{
    return reinterpret_cast<unsigned char *>(bytes.data());
}

const unsigned char *bytesOf(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

} // namespace

namespace SealedStream {

QByteArray context(const QByteArray &set, int disk)
{
    QByteArray number(sizeof(quint32), '\0');
    qToLittleEndian(quint32(disk), number.data());
    return set + number;
}

Writer::Writer(const SecretBytes &key, QByteArray context, Sink sink)
    : m_context(std::move(context))
    , m_sink(std::move(sink))
    , m_plain(chunkLength)
    , m_sealed(chunkLength + chunkWords, '\0')
{
    QByteArray head(headLength, '\0');
    crypto_secretstream_xchacha20poly1305_init_push(&m_state, bytesOf(head), key.bytes());
    m_isRefused = !m_sink(head);
}

/// A full chunk waits until it is known whether another one follows.
bool Writer::write(QByteArrayView bytes)
{
    while (!bytes.isEmpty() && !m_isRefused) {
        if (m_filled == chunkLength && !push(crypto_secretstream_xchacha20poly1305_TAG_MESSAGE))
            return false;
        const qsizetype count = std::min(bytes.size(), chunkLength - m_filled);
        std::ranges::copy(bytes.first(count), m_plain.data() + m_filled);
        m_filled += count;
        bytes = bytes.sliced(count);
    }
    return !m_isRefused;
}

bool Writer::finish()
{
    return !m_isRefused && push(crypto_secretstream_xchacha20poly1305_TAG_FINAL);
}

bool Writer::push(unsigned char tag)
{
    unsigned long long length = 0;
    crypto_secretstream_xchacha20poly1305_push(&m_state, bytesOf(m_sealed), &length, m_plain.bytes(),
                                               quint64(m_filled), bytesOf(std::as_const(m_context)),
                                               quint64(m_context.size()), tag);
    m_filled = 0;
    m_isRefused = !m_sink(QByteArrayView(m_sealed).first(qsizetype(length)));
    return !m_isRefused;
}

Reader::Reader(const SecretBytes &key, QByteArray context, Source source)
    : m_context(std::move(context))
    , m_source(std::move(source))
    , m_plain(chunkLength)
    , m_sealed(chunkLength + chunkWords, '\0')
{
    QByteArray head(headLength, '\0');
    if (fetch(head.data(), head.size()) != head.size())
        stop(State::Incomplete);
    else if (crypto_secretstream_xchacha20poly1305_init_pull(&m_stream, bytesOf(head), key.bytes()) != 0)
        stop(State::Damaged);
}

bool Reader::stop(State state)
{
    if (m_state == State::Reading)
        m_state = state;
    return false;
}

/// As many as asked for, but at the end.
qint64 Reader::fetch(char *bytes, qint64 size)
{
    qint64 got = 0;
    while (got < size) {
        const qint64 count = m_source(bytes + got, size - got);
        if (count < 0)
            stop(State::Damaged);
        if (count <= 0)
            break;
        got += count;
    }
    return got;
}

bool Reader::pull()
{
    const qint64 got = fetch(m_sealed.data(), m_sealed.size());
    if (m_state != State::Reading || got < chunkWords)
        return stop(State::Incomplete);
    const bool isFull = got == m_sealed.size();
    unsigned long long length = 0;
    unsigned char tag = 0;
    const bool isTrue = crypto_secretstream_xchacha20poly1305_pull(
                            &m_stream, m_plain.bytes(), &length, &tag, bytesOf(std::as_const(m_sealed)),
                            quint64(got), bytesOf(std::as_const(m_context)), quint64(m_context.size())) == 0;
    if (!isTrue)
        return stop(isFull ? State::Damaged : State::Incomplete);
    m_isLast = tag == crypto_secretstream_xchacha20poly1305_TAG_FINAL;
    char more = 0;
    if (m_isLast ? fetch(&more, 1) != 0 || m_state != State::Reading
                 : !isFull || tag != crypto_secretstream_xchacha20poly1305_TAG_MESSAGE)
        return stop(State::Damaged);
    m_at = 0;
    m_end = qsizetype(length);
    return true;
}

qint64 Reader::read(char *bytes, qint64 size)
{
    while (m_at == m_end && m_state == State::Reading) {
        if (m_isLast)
            stop(State::Complete);
        else if (!pull())
            return -1;
    }
    if (m_state != State::Reading)
        return m_state == State::Complete ? 0 : -1;
    const qsizetype count = std::min<qint64>(size, m_end - m_at);
    std::copy_n(m_plain.data() + m_at, count, bytes);
    m_at += count;
    return count;
}

} // namespace SealedStream
