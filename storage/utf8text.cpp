// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/utf8text.h"

#include "storage/ansitext.h"

#include <QStringDecoder>

#include <cstdint>
#include <cstring>

namespace {

/// Where the bytes end that are one character each, from `at` on.
qsizetype asciiEnd(QByteArrayView bytes, qsizetype at)
{
    constexpr qsizetype stride = sizeof(std::uint64_t);
    for (; at + stride <= bytes.size(); at += stride) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, bytes.data() + at, sizeof eight);
        if ((eight & 0x8080808080808080U) != 0)
            break;
    }
    while (at < bytes.size() && quint8(bytes[at]) < 0x80)
        ++at;
    return at;
}

/// Where characters end that begin at `at`.
qsizetype validEnd(QByteArrayView bytes, qsizetype at)
{
    while (at < bytes.size()) {
        at = asciiEnd(bytes, at);
        const qsizetype length = at < bytes.size() ? Utf8Text::characterAt(bytes, at) : 0;
        if (length == 0)
            break;
        at += length;
    }
    return at;
}

} // namespace

qsizetype Utf8Text::characterAt(QByteArrayView bytes, qsizetype at)
{
    const auto lead = quint8(bytes[at]);
    if (lead < 0x80)
        return 1;
    const qsizetype length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    if (length == 0 || at + length > bytes.size())
        return 0;
    for (qsizetype i = 1; i < length; ++i) {
        if ((quint8(bytes[at + i]) & 0xC0) != 0x80)
            return 0;
    }
    // Longer than need be, halves of a pair, beyond the last character.
    const auto second = quint8(bytes[at + 1]);
    const bool isNone = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second >= 0xA0) ||
                        (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second >= 0x90);
    return isNone ? 0 : length;
}

QString Utf8Text::decode(QByteArrayView bytes)
{
    QString text;
    qsizetype at = 0;
    while (at < bytes.size()) {
        const qsizetype end = validEnd(bytes, at);
        if (end > at) {
            QStringDecoder decoder(QStringDecoder::Utf8,
                                   QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
            text += QString(decoder.decode(bytes.sliced(at, end - at)));
        }
        qsizetype next = end;
        while (next < bytes.size() && characterAt(bytes, next) == 0)
            ++next;
        text += AnsiText::decode(bytes.sliced(end, next - end));
        at = next;
    }
    return text;
}
