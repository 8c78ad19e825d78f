// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/recordvalue.h"

#include "storage/ansitext.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

constexpr qsizetype numberLength = 2;

// The type codes of a tagged value.
constexpr std::int16_t emptyTag = 0;
constexpr std::int16_t numberTag = 2;
constexpr std::int16_t textTag = 8;

template <typename Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

} // namespace

QByteArray RecordValue::encodeNumber(std::int16_t number)
{
    return littleEndian(number);
}

std::int16_t RecordValue::decodeNumber(QByteArrayView bytes)
{
    return bytes.size() < numberLength ? 0 : qFromLittleEndian<std::int16_t>(bytes.data());
}

std::int16_t RecordValue::clampedNumber(qint64 number)
{
    using Limits = std::numeric_limits<std::int16_t>;
    return std::int16_t(std::clamp<qint64>(number, Limits::min(), Limits::max()));
}

std::optional<QByteArray> RecordValue::encodeText(QStringView text, qsizetype recordLength)
{
    const QByteArray characters = AnsiText::encode(text);
    const qsizetype longest =
        std::min<qsizetype>(recordLength - numberLength, std::numeric_limits<quint16>::max());
    if (characters.size() > longest)
        return std::nullopt;
    return littleEndian(quint16(characters.size())) + characters;
}

QString RecordValue::decodeText(QByteArrayView bytes)
{
    return AnsiText::decode(textBytes(bytes));
}

QByteArrayView RecordValue::textBytes(QByteArrayView bytes)
{
    if (bytes.size() < numberLength)
        return {};
    const qsizetype count = qFromLittleEndian<quint16>(bytes.data());
    if (count > bytes.size() - numberLength)
        return {};
    const char *const start = bytes.data() + numberLength;
    const void *const zero = std::memchr(start, 0, std::size_t(count));
    return {start, zero ? static_cast<const char *>(zero) : start + count};
}

std::optional<QByteArray> RecordValue::encodeTaggedText(QStringView text, qsizetype recordLength)
{
    if (text.isEmpty())
        return recordLength < numberLength ? std::nullopt : std::optional(encodeNumber(emptyTag));
    const std::optional<QByteArray> counted = encodeText(text, recordLength - numberLength);
    return counted ? std::optional<QByteArray>(encodeNumber(textTag) + *counted) : std::nullopt;
}

QString RecordValue::decodeTagged(QByteArrayView bytes)
{
    if (bytes.size() < 2 * numberLength)
        return {};
    const QByteArrayView value = bytes.sliced(numberLength);
    switch (decodeNumber(bytes)) {
    case textTag:
        return decodeText(value);
    case numberTag:
        return QString::number(decodeNumber(value));
    default:
        return {};
    }
}
