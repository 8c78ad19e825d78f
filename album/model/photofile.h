// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photo.h"

#include <QByteArray>

#include <array>
#include <optional>

/// A picture as the bytes of its record.
namespace PhotoFile {

inline const QString name = QStringLiteral("Photobk3.Fil");
inline constexpr qsizetype recordLength = 2560;
inline constexpr int lastRecord = 100000;
inline constexpr QByteArrayView mark("PIC1");

/// Where its fields begin, the last one's end behind them: what is changed in one leaves the others alone.
inline constexpr std::array<qsizetype, 20> fields{0,    4,    516,  836,  1796, 1876, 2036, 2292, 2356, 2388,
                                                  2389, 2390, 2391, 2392, 2396, 2400, 2408, 2416, 2448, 2560};

/// The bits, and behind them what the file of a picture is like: that is looked up, and nobody's doing.
inline constexpr qsizetype bitsAt = 2391;
inline constexpr qsizetype factsAt = 2392;
inline constexpr qsizetype factsEnd = 2448;

/// A whole record; its number is not in it.
QByteArray encode(const Photo &photo);

/// Nothing where there is no picture.
std::optional<Photo> decode(int record, QByteArrayView bytes);

} // namespace PhotoFile
