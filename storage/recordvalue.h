// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

/// The values that one record of a settings or index file can hold, as bytes and back. All numbers are
/// little-endian. Decoders take bytes of any length and give the empty value where a value is cut short.
namespace RecordValue {

/// A whole number: 2 bytes, signed.
QByteArray encodeNumber(std::int16_t number);
/// The whole number at the start of `bytes`; 0 when fewer than two bytes are there.
std::int16_t decodeNumber(QByteArrayView bytes);

/// `number` brought into the signed 16-bit range.
std::int16_t clampedNumber(qint64 number);

/// A counted text: a 2-byte unsigned count, then that many one-byte characters. Nothing when the text, with
/// its count, is longer than `recordLength` bytes: such a text must not be written.
std::optional<QByteArray> encodeText(QStringView text, qsizetype recordLength);
/// The counted text at the start of `bytes`, up to its first zero byte (never written); a count beyond the
/// end gives the empty text.
QString decodeText(QByteArrayView bytes);
/// The characters of that text as they stand in the record, without a copy.
QByteArrayView textBytes(QByteArrayView bytes);

/// A tagged text: type code 8, then the counted text; the empty text is type code 0 alone.
std::optional<QByteArray> encodeTaggedText(QStringView text, qsizetype recordLength);
/// The tagged value at the start of `bytes` as text (a whole number, type code 2, in decimal); empty for type
/// code 0 and unknown codes.
QString decodeTagged(QByteArrayView bytes);

} // namespace RecordValue
